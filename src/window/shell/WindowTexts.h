#pragma once

#include <QString>

#include <cstdint>

/// The sentences that stand for the window elsewhere, in the tray, in notices, in a terminal, and those that
/// it says in passing. Pure.
namespace orlen::WindowTexts {

[[nodiscard]] QString name();
[[nodiscard]] QString freeSpace(const QString& size);
[[nodiscard]] QString lastScan(const QString& safeSize);
[[nodiscard]] QString open();
[[nodiscard]] QString quit();

[[nodiscard]] QString scanFinished();
/// What the scan found safe; nothing is also an answer.
[[nodiscard]] QString safelyFree(std::int64_t safeBytes);
[[nodiscard]] QString moved(int count);
/// Empty for 0.
[[nodiscard]] QString couldNotBeMoved(int count);

/// Of a path that is ready to show.
[[nodiscard]] QString cannotReveal(const QString& path);

[[nodiscard]] const char* alreadyOpen();
[[nodiscard]] const char* noDisplay();

} // namespace orlen::WindowTexts
