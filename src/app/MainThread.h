#pragma once

#include <QPointer>

#include <functional>

class QObject;

namespace orlen {

/// The way back to the main thread for workers, which know none of its objects. Copyable; any thread. The
/// application object, through which everything is posted, must outlive the workers.
class MainThread {
public:
    /// Made on the main thread, for an object that lives there.
    explicit MainThread(QObject& receiver) : m_receiver(&receiver) {}

    /// Runs the task on the main thread, later, from its event loop; drops it when the receiver is gone by
    /// then.
    void post(std::function<void()> task) const;

private:
    QPointer<QObject> m_receiver;
};

} // namespace orlen
