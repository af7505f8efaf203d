#pragma once

#include <QString>

#include <cstdint>

/// Texts for the tray, notices and the terminal. Pure.
namespace orlen::WindowTexts {

[[nodiscard]] QString name();
[[nodiscard]] QString freeSpace(const QString& size);
[[nodiscard]] QString lastScan(const QString& safeSize);
[[nodiscard]] QString open();
[[nodiscard]] QString quit();

[[nodiscard]] QString scanFinished();
/// How much the scan found safe to remove, even if that is nothing.
[[nodiscard]] QString safelyFree(std::int64_t safeBytes);
[[nodiscard]] QString moved(int count);
/// Empty for 0.
[[nodiscard]] QString couldNotBeMoved(int count);

/// `path` is ready to show.
[[nodiscard]] QString cannotReveal(const QString& path);

[[nodiscard]] const char* alreadyOpen();
[[nodiscard]] const char* noDisplay();

} // namespace orlen::WindowTexts
