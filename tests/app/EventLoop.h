#pragma once

#include <QCoreApplication>
#include <QTimer>

#include <chrono>

namespace orlen {

/// Runs the event loop until the condition holds; false when it did not within a long time.
template <typename Condition>
[[nodiscard]] bool waitUntil(Condition&& condition)
{
    bool isLate = false;
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, [&] { isLate = true; });
    limit.start(std::chrono::seconds(30));
    while (!condition() && !isLate)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return !isLate;
}

} // namespace orlen
