#include "tools/startup/UnitFile.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace orlen {

TEST(UnitFileTest, theProgramIsTheFirstWordOfTheFirstStartCommand)
{
    struct Case {
        const char* name;
        const char* text;
        const char* program;
    };
    const Case cases[] = {
        {"plain", "[Service]\nExecStart=/usr/bin/sync --quiet\n", "/usr/bin/sync"},
        {"spaces", "  [Service]\r\n\tExecStart =  /usr/bin/sync\t-q \r\n", "/usr/bin/sync"},
        {"last line unfinished", "[Service]\nExecStart=/usr/bin/sync", "/usr/bin/sync"},
        {"prefixes", "[Service]\nExecStart=-@:+!!/usr/bin/sync sync\n", "/usr/bin/sync"},
        {"double quotes", "[Service]\nExecStart=\"/opt/My Sync/sync\" -q\n", "/opt/My Sync/sync"},
        {"prefix before quotes", "[Service]\nExecStart=-'/opt/My Sync/sync'\n", "/opt/My Sync/sync"},
        {"escapes", "[Service]\nExecStart=/opt/My\\x20Sync\\s1/sy\\\\nc\n", "/opt/My Sync 1/sy\\nc"},
        {"a percent sign, a home", "[Service]\nExecStart=%h/100%%/%i\n", "/home/user/100%/%i"},
        {"goes on", "[Service]\nExecStart=\\\n  /usr/bin/sync \\\n -q\n", "/usr/bin/sync"},
        {"a comment between", "[Service]\nExecStart=\\\n# no\n; no\n/usr/bin/sync\n", "/usr/bin/sync"},
        {"comments do not go on", "[Service]\n# none \\\nExecStart=/usr/bin/sync\n", "/usr/bin/sync"},
        {"the first of two", "[Service]\nExecStart=/bin/a\nExecStart=/bin/b\n", "/bin/a"},
        {"taken back", "[Service]\nExecStart=/bin/a\nExecStart=\nExecStart=/bin/b\n", "/bin/b"},
        {"only taken back", "[Service]\nExecStart=/bin/a\nExecStart=\n", ""},
        {"another key", "[Service]\nExecStartPre=/bin/a\nExecStop=/bin/b\n", ""},
        {"another section", "[Unit]\nExecStart=/bin/a\n[Service]\nType=simple\n", ""},
        {"no section", "ExecStart=/bin/a\n", ""},
        {"open quote", "[Service]\nExecStart=\"/bin/a b\n", ""},
        {"cut off", "[Service]\nExecStart=/bin/a \\", "/bin/a"},
        {"prefixes alone", "[Service]\nExecStart=-@\n", ""},
        {"not UTF-8", "[Service]\nExecStart=/bin/\\xff\n", ""},
        {"a zero byte", "[Service]\nExecStart=/bin/a\\x00b\n", ""},
        {"empty", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(UnitFile::parsed(c.text, "/home/user").program, c.program);
    }
}

TEST(UnitFileTest, onlyAnInstallSectionMakesItASwitch)
{
    struct Case {
        const char* text;
        bool isInstallable;
    };
    const Case cases[] = {
        {"[Install]\nWantedBy=default.target\n", true},
        {"[Install]\nRequiredBy=a.service\n", true},
        {"[Install]\nAlias=b.service\n", true},
        {"[Install]\nWantedBy=\n", false},
        {"[Install]\nAlso=c.socket\n", false},
        {"[Unit]\nWantedBy=default.target\n", false},
        {"[Install]\n#WantedBy=default.target\n", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(UnitFile::parsed(c.text, "/home/user").isInstallable, c.isInstallable);
    }
}

TEST(UnitFileTest, filesThatAreNoUnitsAreRefused)
{
    const TempHome home;
    constexpr std::size_t kLimit = 256UL * 1024;
    const std::string start = "[Service]\nExecStart=/bin/a\n";
    const std::string allowed = start + std::string(kLimit - start.size(), '#');
    EXPECT_EQ(UnitFile::read(home.file("allowed", allowed), "").value_or(UnitFile()).program, "/bin/a");
    EXPECT_FALSE(UnitFile::read(home.file("long", allowed + "#"), ""));
    EXPECT_FALSE(UnitFile::read(home.folder("folder"), ""));
    EXPECT_FALSE(UnitFile::read(home.path("missing"), ""));
    EXPECT_FALSE(UnitFile::read(home.link("masked", "/dev/null"), ""));
    EXPECT_TRUE(UnitFile::read(home.link("link", home.path("allowed")), ""));
}

} // namespace orlen
