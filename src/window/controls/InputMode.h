#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// Whether the program is used with the keyboard at the moment, so that what has the focus is marked. Main
/// thread.
class InputMode : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// True from a key until the next press of a pointer.
    Q_PROPERTY(bool keyed READ isKeyed NOTIFY keyedChanged)

public:
    explicit InputMode(QObject* parent = nullptr);

    [[nodiscard]] bool isKeyed() const { return m_isKeyed; }

    [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void keyedChanged();

private:
    void setKeyed(bool isKeyed);

    bool m_isKeyed = false;
};

} // namespace orlen
