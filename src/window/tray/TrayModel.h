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
    /// What brings the window to the front, and what ends the program.
    Q_PROPERTY(QString openLabel READ openLabel CONSTANT)
    Q_PROPERTY(QString quitLabel READ quitLabel CONSTANT)

public:
    explicit TrayModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString lastScanText() const;
    [[nodiscard]] static QString openLabel();
    [[nodiscard]] static QString quitLabel();

Q_SIGNALS:
    void changed();

private:
    AppModel& m_app;
};

} // namespace orlen
