#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The texts of the tray item and its panel. Main thread.
class TrayModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Free space in words, or the program's name until it is known.
    Q_PROPERTY(QString title READ title NOTIFY changed)
    /// What the last scan found safe to remove; empty before a scan.
    Q_PROPERTY(QString lastScanText READ lastScanText NOTIFY changed)

public:
    explicit TrayModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString lastScanText() const;

Q_SIGNALS:
    void changed();

private:
    AppModel& m_app;
};

} // namespace orlen
