#include "window/shell/Appearance.h"

#include <QDBusArgument>
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
const QString kAccent = QStringLiteral("accent-color");
const QString kReducedMotion = QStringLiteral("reduced-motion");
const QString kAnimations = QStringLiteral("enable-animations");

const QString kKdeInterface = QStringLiteral("org.kde.kdeglobals.KDE");
const QString kKdeAnimations = QStringLiteral("AnimationDurationFactor");

constexpr double kUsualPoints = 10;
constexpr double kLargestScale = 2;

Appearance::Scheme fixedScheme = Appearance::Scheme::system;
bool isMotionFixedOff = false;
double fixedTextScale = 0;

/// The portal's colour: red, green and blue from 0 to 1. A channel out of range means that there is none.
QColor colourOf(const QVariant& value)
{
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto channels = value.value<QDBusArgument>();
    if (channels.currentSignature() != QLatin1String("(ddd)"))
        return {};
    double red = -1;
    double green = -1;
    double blue = -1;
    channels.beginStructure();
    channels >> red >> green >> blue;
    channels.endStructure();
    const auto isChannel = [](double channel) { return channel >= 0 && channel <= 1; };
    if (!isChannel(red) || !isChannel(green) || !isChannel(blue))
        return {};
    return QColor::fromRgbF(static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue));
}

/// Whether a setting, which may be a text, is the number zero.
bool isZero(const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && number == 0;
}

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
    ask(kAppearance, kAccent);
    ask(kAppearance, kReducedMotion);
    ask(kDesktopInterface, kAnimations);
    ask(kKdeInterface, kKdeAnimations);
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
    else if (group == kAppearance && key == kAccent)
        m_accent = colourOf(plain);
    else if (group == kAppearance && key == kReducedMotion)
        m_isMotionReduced = plain.toInt() == 1;
    else if (group == kDesktopInterface && key == kAnimations)
        m_areGnomeAnimationsOff = !plain.toBool();
    else if (group == kKdeInterface && key == kKdeAnimations)
        m_areKdeAnimationsOff = isZero(plain);
    else
        return;
    // Shades are those of the light or the dark.
    if (m_accent.isValid())
        m_shades = accentShades(m_accent, isDark());
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
    return isMotionFixedOff || m_isMotionReduced || m_areGnomeAnimationsOff || m_areKdeAnimationsOff;
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
