#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// The choice of which file of each set of duplicates is kept. Main thread.
class KeepRuleModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The choices; a fifth names a folder if the files of one are kept.
    Q_PROPERTY(QStringList choices READ choices NOTIFY changed)
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY changed)
    Q_PROPERTY(QString currentText READ currentText NOTIFY changed)

public:
    explicit KeepRuleModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QStringList choices() const;
    [[nodiscard]] int current() const;
    void setCurrent(int choice);
    [[nodiscard]] QString currentText() const { return choices().value(current()); }

Q_SIGNALS:
    void changed();

private:
    AppModel& m_app;
};

} // namespace orlen
