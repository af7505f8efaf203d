#pragma once

#include "app/AppModel.h"

#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

namespace orlen {

/// Makes the application model known to QML as the singleton `AppModel`. The engine never owns it.
struct AppModelElement {
    Q_GADGET
    QML_FOREIGN(orlen::AppModel)
    QML_NAMED_ELEMENT(AppModel)
    QML_SINGLETON

public:
    /// The model that QML is to see; before the first component is loaded, and again before it is destroyed.
    static void setModel(AppModel* model);
    /// The same, for what QML makes. There must be one.
    [[nodiscard]] static AppModel& model();
    static AppModel* create(QQmlEngine* engine, QJSEngine* scripts);
};

/// The parts of the application model, as its properties.
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
