#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Paths as hexadecimal text for QML, whose strings cannot hold arbitrary bytes. Pure; any thread.
namespace orlen::PathCode {

[[nodiscard]] inline QString of(const std::string& path)
{
    return QString::fromLatin1(QByteArray::fromStdString(path).toHex());
}

[[nodiscard]] inline std::string path(const QString& code)
{
    return QByteArray::fromHex(code.toLatin1()).toStdString();
}

} // namespace orlen::PathCode
