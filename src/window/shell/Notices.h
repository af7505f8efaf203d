#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <deque>

namespace orlen {

/// What the window says in passing: one sentence after the other, each until it was read. Hears by itself of
/// files that could not be shown in the file manager. Main thread.
class Notices : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The sentence that is shown; empty for none.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// Whether the sentence tells of a path, which can be copied.
    Q_PROPERTY(bool hasPath READ hasPath NOTIFY changed)
    /// Whether the user is at the sentence, with the pointer or the keyboard: then it stays.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged)
    /// Milliseconds that a short sentence is shown.
    Q_PROPERTY(int shortest MEMBER m_shortest NOTIFY shortestChanged)

public:
    /// Begins with what the application model has to say of its start.
    explicit Notices(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString text() const { return m_shown.text; }
    [[nodiscard]] bool hasPath() const { return !m_shown.path.isEmpty(); }
    [[nodiscard]] bool isHeld() const { return m_isHeld; }
    void setHeld(bool isHeld);

    /// Shows the sentence, when those that came before were read. One that is shown is only shown longer.
    Q_INVOKABLE void say(const QString& text);
    /// Goes on to the next sentence; nothing when none is shown.
    Q_INVOKABLE void dismiss();
    /// Puts the path on the clipboard.
    Q_INVOKABLE void copyPath() const;
    /// Lets screen readers read out the item that shows the sentence.
    Q_INVOKABLE static void announce(QObject* item);

Q_SIGNALS:
    void changed();
    void heldChanged();
    void shortestChanged();

private:
    struct Notice {
        QString text;
        QString path; ///< empty when it tells of none

        friend bool operator==(const Notice&, const Notice&) = default;
    };

    void add(Notice notice);
    void goOn();
    void letRead();
    [[nodiscard]] std::chrono::milliseconds readingTime() const;

    Notice m_shown;
    std::deque<Notice> m_waiting;
    QTimer m_timer; ///< until the shown sentence was read, or until the next one comes
    bool m_isHeld = false;
    int m_shortest = 6000;
};

} // namespace orlen
