#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace orlen {

/// What the window says when a file could not be shown in the file manager. Main thread.
class RevealNotice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// Of the file that could not be shown; empty when there is nothing to say.
    Q_PROPERTY(QString path READ path NOTIFY changed)

public:
    explicit RevealNotice(QObject* parent = nullptr);

    [[nodiscard]] QString path() const { return m_path; }
    /// Puts the path on the clipboard.
    Q_INVOKABLE void copy() const;
    Q_INVOKABLE void dismiss() { setPath({}); }

Q_SIGNALS:
    void changed();

private:
    void setPath(const QString& path);

    QString m_path;
};

} // namespace orlen
