#pragma once

#include "app/AppModel.h"

#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

namespace orlen {

/// Exposes the application model to QML as the singleton `AppModel`. The engine never owns it.
struct AppModelElement {
    Q_GADGET
    QML_FOREIGN(orlen::AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_SINGLETON

public:
    /// Sets the model that QML sees. Call before the first component is loaded.
    static void setModel(AppModel* model);
    /// For objects created by QML. A model must be set.
    [[nodiscard]] static AppModel& model();
    static AppModel* create(QQmlEngine* engine, QJSEngine* scripts);
};

/// The parts of the application model, which are its properties.
struct ResultsElement {
    Q_GADGET
    QML_FOREIGN(orlen::Results)
    QML_ANONYMOUS
};
struct CleanUpsElement {
    Q_GADGET
    QML_FOREIGN(orlen::CleanUps)
    QML_ANONYMOUS
};
struct StorageElement {
    Q_GADGET
    QML_FOREIGN(orlen::Storage)
    QML_ANONYMOUS
};

} // namespace orlen
