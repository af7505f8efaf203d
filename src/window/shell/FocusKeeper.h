#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Gives the keyboard to what stands next when the item of a screen that had it is disabled, hidden or gone:
/// soon, in case the item comes back, but before the next key. Main thread.
class FocusKeeper : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickWindow* window READ window WRITE setWindow NOTIFY windowChanged)

public:
    explicit FocusKeeper(QObject* parent = nullptr);

    [[nodiscard]] QQuickWindow* window() const { return m_window; }
    void setWindow(QQuickWindow* window);

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void windowChanged();

private:
    void follow();
    void giveOn();
    [[nodiscard]] QQuickItem* successor() const;

    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_last; ///< the last item that had the keyboard and was in use
    bool m_hadOne = false;       ///< whether there was one, which may be gone
    bool m_isKeyed = false;      ///< whether a key came after the last press of a pointer
    QTimer m_timer;
};

} // namespace orlen
