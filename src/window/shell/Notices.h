#pragma once

#include "window/shell/AppModelElement.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <deque>
#include <functional>

namespace orlen {

/// Short notices in the window, shown one after another, each long enough to be read; only the latest of
/// those that tell of a change to undo. One with a time of its own lets others pass. Also reports files that
/// could not be shown in the file manager. Main thread.
class Notices : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The notice shown; empty for none.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// Whether the notice is about a path, which can be copied.
    Q_PROPERTY(bool hasPath READ hasPath NOTIFY changed)
    /// Whether what the notice tells of can be undone.
    Q_PROPERTY(bool hasUndo READ hasUndo NOTIFY changed)
    /// Whether the notice is shown for a long time, so that it must not be in the way.
    Q_PROPERTY(bool lasting READ isLasting NOTIFY changed)
    /// Whether the pointer or the keyboard focus is on the notice, which keeps it open.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld NOTIFY heldChanged)
    /// Milliseconds a short notice is shown.
    Q_PROPERTY(int shortest MEMBER m_shortest NOTIFY shortestChanged)

public:
    /// Starts with the application model's startup notices.
    explicit Notices(AppModel& app = AppModelElement::model());

    [[nodiscard]] QString text() const { return m_shown.text; }
    [[nodiscard]] bool hasPath() const { return !m_shown.path.isEmpty(); }
    [[nodiscard]] bool hasUndo() const { return m_shown.undo != nullptr; }
    [[nodiscard]] bool isLasting() const { return m_shown.time.count() > 0; }
    [[nodiscard]] bool isHeld() const { return m_isHeld; }
    void setHeld(bool isHeld);

    /// Queues the notice. If it is the one being shown, only its time starts again.
    Q_INVOKABLE void say(const QString& text);
    /// Goes on to the next notice; ignored when none is shown.
    Q_INVOKABLE void dismiss();
    /// Copies the path to the clipboard.
    Q_INVOKABLE void copyPath() const;
    /// Undoes what the notice tells of and goes on to the next; ignored when there is nothing to undo.
    Q_INVOKABLE void undo();
    /// Makes screen readers announce the item that shows the notice.
    Q_INVOKABLE static void announce(QObject* item);

Q_SIGNALS:
    void changed();
    void heldChanged();
    void shortestChanged();

private:
    struct Notice {
        QString text;
        QString path;                     ///< empty for none
        std::function<void()> undo;       ///< may be empty
        std::chrono::milliseconds time{}; ///< to be shown for; 0: as long as it takes to read
    };

    [[nodiscard]] static bool isSame(const Notice& a, const Notice& b);
    void add(Notice notice);
    void takeBack(const QString& text);
    void giveWay();
    void goOn();
    void letRead();
    [[nodiscard]] std::chrono::milliseconds readingTime() const;

    Notice m_shown;
    std::deque<Notice> m_waiting;
    QTimer m_timer; ///< until the notice has been read, or until the next one appears
    bool m_isHeld = false;
    int m_shortest = 6000;
};

} // namespace orlen
