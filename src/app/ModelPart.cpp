#include "app/ModelPart.h"

#include "platform/values/CheckedSum.h"

#include <QThread>

namespace orlen {

void ModelPart::checkThread() const
{
    if (QThread::currentThread() != thread())
        fatalError("the application model was used outside its thread");
}

} // namespace orlen
