#pragma once

#include <QPointer>

#include <functional>

class QObject;

namespace orlen {

/// Lets workers post tasks to the main thread without touching its objects. Copyable; any thread. Tasks go
/// through the application object, which must outlive the workers.
class MainThread {
public:
    /// Main thread only; `receiver` lives there.
    explicit MainThread(QObject& receiver) : m_receiver(&receiver) {}

    /// Runs the task later from the main thread's event loop, or drops it if the receiver is gone by then.
    void post(std::function<void()> task) const;

private:
    QPointer<QObject> m_receiver;
};

} // namespace orlen
