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

AppModel* AppModelElement::create(QQmlEngine* /*engine*/, QJSEngine* /*scripts*/)
{
    Q_ASSERT(shownModel != nullptr);
    QQmlEngine::setObjectOwnership(shownModel, QQmlEngine::CppOwnership);
    return shownModel;
}

} // namespace orlen
