#include "app/MainThread.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <utility>

namespace orlen {

void MainThread::post(std::function<void()> task) const
{
    // Only the main thread looks whether the receiver still lives: nowhere else would the answer hold.
    const auto deliver = [receiver = m_receiver, task = std::move(task)] {
        if (receiver)
            task();
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), deliver, Qt::QueuedConnection);
}

} // namespace orlen
