#pragma once

#include "app/Workers.h"
#include "scan/Explanation.h"
#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <string>

namespace orlen {

/// What Orlen would do with a path that the user types, and why. Looks again when the exclusions change. Main
/// thread, and needs its event loop; a worker looks at the disk.
class PathTestModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// As typed: a whole path, one that begins with "~", or a "file:" address.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    /// Whether the answer is still to come.
    Q_PROPERTY(bool looking READ isLooking NOTIFY changed)
    /// The path and its size; empty while there is no answer.
    Q_PROPERTY(QString heading READ heading NOTIFY changed)
    /// The answer, a line for each sentence; also for a text that is no path. Empty while there is none.
    Q_PROPERTY(QString answer READ answer NOTIFY changed)

public:
    explicit PathTestModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString& text);
    [[nodiscard]] bool isLooking() const { return m_isLooking; }
    [[nodiscard]] QString heading() const { return m_heading; }
    [[nodiscard]] QString answer() const { return m_answer; }

Q_SIGNALS:
    void textChanged();
    void changed();

private:
    void look();
    void show(const Explanation& told);
    void setAnswer(bool isLooking, const QString& heading, const QString& answer);

    AppModel& m_app;
    QString m_text;
    QString m_heading;
    QString m_answer;
    bool m_isLooking = false;
    QTimer m_pause; ///< until the user has stopped typing

    Latest m_look;
    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
