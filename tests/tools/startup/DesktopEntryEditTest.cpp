#include "tools/startup/DesktopEntryEdit.h"

#include <gtest/gtest.h>

#include <array>

namespace orlen {

namespace {

using DesktopEntryEdit::Setting;
constexpr std::array<Setting, 2> kSettings{{{"Hidden", "true"}, {"X-Mark", "yes"}}};

} // namespace

TEST(DesktopEntryEditTest, onlyTheLinesOfTheKeysChange)
{
    struct Case {
        const char* name;
        const char* before;
        const char* after;
    };
    const Case cases[] = {
        {"both there", "# mine\n[Desktop Entry]\nX-Mark=no\nName=A\n Hidden = false \n\nExec=a\n",
         "# mine\n[Desktop Entry]\nX-Mark=yes\nName=A\nHidden=true\n\nExec=a\n"},
        {"none there", "[Desktop Entry]\nName=A\n", "[Desktop Entry]\nHidden=true\nX-Mark=yes\nName=A\n"},
        {"one there", "[Desktop Entry]\nHidden=false\n", "[Desktop Entry]\nX-Mark=yes\nHidden=true\n"},
        {"nothing but a heading", "[Desktop Entry]", "[Desktop Entry]\nHidden=true\nX-Mark=yes\n"},
        {"last line unfinished", "[Desktop Entry]\nX-Mark=no\nHidden=false",
         "[Desktop Entry]\nX-Mark=yes\nHidden=true"},
        {"carriage returns", "[Desktop Entry]\r\nHidden=false\r\nName=A\r\n",
         "[Desktop Entry]\r\nX-Mark=yes\r\nHidden=true\r\nName=A\r\n"},
        {"twice in the group", "[Desktop Entry]\nX-Mark=1\nHidden=false\nHidden=0\n",
         "[Desktop Entry]\nX-Mark=yes\nHidden=true\nHidden=true\n"},
        {"other groups", "[A]\nHidden=1\n[Desktop Entry]\nX-Mark=1\n[Desktop Action B]\nHidden=2\n",
         "[A]\nHidden=1\n[Desktop Entry]\nHidden=true\nX-Mark=yes\n[Desktop Action B]\nHidden=2\n"},
        {"the group again", "[Desktop Entry]\nX-Mark=1\n[B]\n[Desktop Entry]\nHidden=0\n",
         "[Desktop Entry]\nX-Mark=yes\n[B]\n[Desktop Entry]\nHidden=true\n"},
        {"keys that only look alike",
         "[Desktop Entry]\nHidden[de]=a\nHiddenBy=b\n#Hidden=c\nhidden=d\nX-Hidden=e\nHidden\n",
         "[Desktop Entry]\nHidden=true\nX-Mark=yes\nHidden[de]=a\nHiddenBy=b\n#Hidden=c\nhidden=d\n"
         "X-Hidden=e\nHidden\n"},
        {"bytes that are no text", "[Desktop Entry]\nName=\xff\xfe\n\n\n",
         "[Desktop Entry]\nHidden=true\nX-Mark=yes\nName=\xff\xfe\n\n\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(DesktopEntryEdit::withSettings(c.before, kSettings), c.after);
        EXPECT_EQ(DesktopEntryEdit::withSettings(c.after, kSettings), c.after);
    }
}

TEST(DesktopEntryEditTest, withoutTheGroupNothingIsMade)
{
    for (const char* text : {"", "Hidden=false\n", "[Desktop Action A]\nHidden=false\n", "[desktop entry]\n",
                             "#[Desktop Entry]\n", "[Desktop Entry\n"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(DesktopEntryEdit::withSettings(text, kSettings), std::nullopt);
    }
}

} // namespace orlen
