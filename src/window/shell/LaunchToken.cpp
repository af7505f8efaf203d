#include "window/shell/LaunchToken.h"

namespace orlen {

namespace {

constexpr const char* kWaylandVariable = "XDG_ACTIVATION_TOKEN";
constexpr const char* kX11Variable = "DESKTOP_STARTUP_ID";
const QString kWaylandKey = QStringLiteral("activation-token");
const QString kX11Key = QStringLiteral("desktop-startup-id");

} // namespace

LaunchToken LaunchToken::fromEnvironment()
{
    return {qEnvironmentVariable(kWaylandVariable), qEnvironmentVariable(kX11Variable)};
}

LaunchToken LaunchToken::fromPlatformData(const QVariantMap& data)
{
    return {data.value(kWaylandKey).toString(), data.value(kX11Key).toString()};
}

QVariantMap LaunchToken::platformData() const
{
    QVariantMap data;
    if (!wayland.isEmpty())
        data.insert(kWaylandKey, wayland);
    if (!x11.isEmpty())
        data.insert(kX11Key, x11);
    return data;
}

void LaunchToken::use() const
{
    if (!wayland.isEmpty())
        qputenv(kWaylandVariable, wayland.toUtf8());
}

} // namespace orlen
