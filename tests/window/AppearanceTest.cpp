#include "window/shell/Appearance.h"
#include "window/controls/AccentShades.h"

#include <gtest/gtest.h>

namespace orlen {

TEST(AccentShadesTest, canBeReadWhateverTheColour)
{
    for (int hue = 0; hue < 360; hue += 20)
        for (const int lightness : {20, 90, 128, 180, 240})
            for (const bool isDark : {false, true}) {
                const QColor colour = QColor::fromHsl(hue, 200, lightness);
                SCOPED_TRACE(colour.name().toStdString() + (isDark ? " dark" : " light"));
                const AccentShades shades = accentShades(colour, isDark);
                for (const QColor& fill : {shades.fill, shades.hover, shades.pressed})
                    EXPECT_GE(contrastOf(fill, Qt::white), 4.5);
                for (const QColor& surface : {QColor(isDark ? "#131519" : "#ffffff"),
                                              QColor(isDark ? "#2b313a" : "#e6e9ee"), shades.soft})
                    EXPECT_GE(contrastOf(shades.text, surface), 4.5);
            }
}

TEST(AccentShadesTest, keepAColourThatCanBeRead)
{
    EXPECT_EQ(accentShades("#2c62e6", false).fill, QColor("#2c62e6"));
    EXPECT_NEAR(contrastOf(Qt::black, Qt::white), 21, 0.001);
}

} // namespace orlen
