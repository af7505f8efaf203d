#include "window/shell/Appearance.h"

#include "FakeDesktop.h"
#include "app/EventLoop.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace orlen {

namespace {

const QString kGroup = QStringLiteral("org.freedesktop.appearance");
const QString kScheme = QStringLiteral("org.freedesktop.appearance color-scheme");
const QString kAnimations = QStringLiteral("org.gnome.desktop.interface enable-animations");

} // namespace

TEST(AppearanceTest, showsWhatTheDesktopPrefers)
{
    struct Case {
        const char* name;
        FakePortal::Settings settings;
        bool isDark;
        bool isReducedMotion;
    };
    const Case cases[] = {
        {"dark", {{kScheme, 1U}, {kAnimations, true}}, true, false},
        {"light", {{kScheme, 2U}, {kAnimations, true}}, false, false},
        {"no preference", {{kScheme, 0U}, {kAnimations, true}}, false, false},
        {"without animations", {{kScheme, 1U}, {kAnimations, false}}, true, true},
        {"without animations in KDE",
         {{"org.kde.kdeglobals.KDE AnimationDurationFactor", QStringLiteral("0")}},
         false,
         true},
        {"with less motion", {{"org.freedesktop.appearance reduced-motion", 1U}}, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const FakePortal portal(c.settings);
        const Appearance appearance;
        QSignalSpy changes(&appearance, &Appearance::changed);
        ASSERT_TRUE(waitUntil([&] { return changes.count() == c.settings.size(); }))
            << "one answer for each setting";
        EXPECT_EQ(appearance.isDark(), c.isDark);
        EXPECT_EQ(appearance.isReducedMotion(), c.isReducedMotion);
    }
}

TEST(AppearanceTest, followsAChange)
{
    FakePortal portal({{kScheme, 1U}});
    const Appearance appearance;
    ASSERT_TRUE(waitUntil([&] { return appearance.isDark(); }));
    portal.change(kGroup, "color-scheme", 2U);
    EXPECT_TRUE(waitUntil([&] { return !appearance.isDark(); }));
    portal.change(kGroup, "contrast", 1U);
    EXPECT_TRUE(waitUntil([&] { return appearance.isHighContrast(); }));
    EXPECT_FALSE(appearance.hasAccent());
    portal.change(kGroup, "accent-color", PortalColour{0.2, 0.3, 0.1});
    ASSERT_TRUE(waitUntil([&] { return appearance.hasAccent(); }));
    EXPECT_EQ(appearance.accentFill(), QColor::fromRgbF(0.2F, 0.3F, 0.1F));
    portal.change(kGroup, "accent-color", PortalColour{-1, 0, 0});
    EXPECT_TRUE(waitUntil([&] { return !appearance.hasAccent(); })) << "out of range is none";
}

TEST(AppearanceTest, isLightAndMovesWithoutAPortal)
{
    const Appearance appearance;
    QCoreApplication::processEvents();
    EXPECT_FALSE(appearance.isDark());
    EXPECT_FALSE(appearance.isReducedMotion());
}

} // namespace orlen
