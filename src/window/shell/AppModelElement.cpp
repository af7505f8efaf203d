#include "window/shell/AppModelElement.h"

#include <QQmlEngine>

namespace orlen {

namespace {

AppModel* shownModel = nullptr; // main thread only

} // namespace

void AppModelElement::setModel(AppModel* model)
{
    shownModel = model;
}

AppModel& AppModelElement::model()
{
    Q_ASSERT(shownModel != nullptr);
    return *shownModel;
}

AppModel* AppModelElement::create(QQmlEngine* /*engine*/, QJSEngine* /*scripts*/)
{
    QQmlEngine::setObjectOwnership(&model(), QQmlEngine::CppOwnership);
    return &model();
}

} // namespace orlen
