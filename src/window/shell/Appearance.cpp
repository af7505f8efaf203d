#include "window/shell/Appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace orlen {

namespace {

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kDesktopInterface = QStringLiteral("org.gnome.desktop.interface");
const QString kColourScheme = QStringLiteral("color-scheme");
const QString kContrast = QStringLiteral("contrast");
const QString kAnimations = QStringLiteral("enable-animations");

constexpr double kUsualPoints = 10;
constexpr double kLargestScale = 2;

Appearance::Scheme fixedScheme = Appearance::Scheme::system;
bool isMotionFixedOff = false;
double fixedTextScale = 0;

} // namespace

Appearance::Appearance(QObject* parent) : QObject(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    // Without the registered type the slot is not found, and no change arrives.
    qRegisterMetaType<QDBusVariant>();
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(applySetting(QString, QString, QDBusVariant)));
    ask(kAppearance, kColourScheme);
    ask(kAppearance, kContrast);
    ask(kDesktopInterface, kAnimations);
}

void Appearance::ask(const QString& group, const QString& key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    call << group << key;
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key](auto* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (reply.isValid())
            applySetting(group, key, reply.value());
    });
}

void Appearance::applySetting(const QString& group, const QString& key, const QDBusVariant& value)
{
    QVariant plain = value.variant();
    // The portal's older call wraps the value twice.
    if (plain.canConvert<QDBusVariant>())
        plain = plain.value<QDBusVariant>().variant();
    if (group == kAppearance && key == kColourScheme)
        m_colourScheme = plain.toInt();
    else if (group == kAppearance && key == kContrast)
        m_isHighContrast = plain.toInt() == 1;
    else if (group == kDesktopInterface && key == kAnimations)
        m_areAnimationsOff = !plain.toBool();
    else
        return;
    Q_EMIT changed();
}

bool Appearance::isDark() const
{
    if (fixedScheme != Scheme::system)
        return fixedScheme == Scheme::dark;
    if (m_colourScheme != 0)
        return m_colourScheme == 1;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool Appearance::isReducedMotion() const
{
    return isMotionFixedOff || m_areAnimationsOff;
}

QString Appearance::fontFamily()
{
    return QGuiApplication::font().family();
}

double Appearance::textScale() const
{
    if (fixedTextScale > 0)
        return fixedTextScale;
    const double points = QFontDatabase::systemFont(QFontDatabase::GeneralFont).pointSizeF();
    return std::clamp(points / kUsualPoints, 1.0, kLargestScale);
}

void Appearance::setScheme(Scheme scheme)
{
    fixedScheme = scheme;
}

void Appearance::setReducedMotion(bool isReduced)
{
    isMotionFixedOff = isReduced;
}

void Appearance::setTextScale(double scale)
{
    fixedTextScale = scale;
}

} // namespace orlen
