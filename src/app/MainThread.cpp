#include "app/MainThread.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <utility>

namespace orlen {

void MainThread::post(std::function<void()> task) const
{
    // Checked on the main thread only: anywhere else the receiver could die right after the check.
    const auto deliver = [receiver = m_receiver, task = std::move(task)] {
        if (receiver)
            task();
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), deliver, Qt::QueuedConnection);
}

} // namespace orlen
