#pragma once

#include <QObject>
#include <QRect>
#include <QSize>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace orlen {

/// Where the main window was when it was last closed, in device-independent pixels. It is kept in the user's
/// settings and never leads off the screens there are now, nor makes the window larger than one of them. Main
/// thread.
class WindowPlace : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// What the window starts with.
    Q_PROPERTY(QSize size READ size CONSTANT)
    Q_PROPERTY(bool maximized READ isMaximized CONSTANT)
    /// The least the window may be made: less where the screen has less.
    Q_PROPERTY(QSize minimum READ minimum CONSTANT)
    /// The window that is followed.
    Q_PROPERTY(QWindow* window READ window WRITE setWindow NOTIFY windowChanged)

public:
    explicit WindowPlace(QObject* parent = nullptr);
    ~WindowPlace() override;
    WindowPlace(const WindowPlace&) = delete;
    WindowPlace& operator=(const WindowPlace&) = delete;
    WindowPlace(WindowPlace&&) = delete;
    WindowPlace& operator=(WindowPlace&&) = delete;

    [[nodiscard]] QSize size() const { return m_place.size(); }
    [[nodiscard]] bool isMaximized() const { return m_isMaximized; }
    [[nodiscard]] QSize minimum() const;
    [[nodiscard]] QWindow* window() const { return m_window; }
    void setWindow(QWindow* window);

    /// The part of `wanted` that a screen has room for: no larger than `room`, and wholly inside it.
    [[nodiscard]] static QRect fitted(const QRect& wanted, const QRect& room);

Q_SIGNALS:
    void windowChanged();

private:
    void follow();

    QWindow* m_window = nullptr;
    QRect m_place;
    bool m_hasPosition = false;
    bool m_isMaximized = false;
};

} // namespace orlen
