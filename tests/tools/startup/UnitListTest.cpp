#include "tools/startup/UnitList.h"

#include "tools/startup/StartupHome.h"

#include "platform/process/ChildProcess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace orlen {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(UnitListTest, unitsComeInOrderAndTheRestIsPassedOver)
{
    const auto units = UnitList::parsed(R"([
        {"unit_file": "b.service", "state": "enabled", "vendor_preset": "enabled"},
        {"state": "masked", "preset": null, "unit_file": "a.service"},
        {"unit_file": "no state"}, {"state": "no name"}, {"unit_file": 7, "state": "enabled"},
        {"unit_file": {"unit_file": "inner", "state": "enabled"}, "state": "enabled"},
        ["unit_file", "state"], "unit_file", 1, -1, 1.5, true, null, {},
        {"unit_file": "", "state": "enabled"},
        {"unit_file": "c.service", "more": {"state": "inner", "deeper": [{}]}, "state": "linked"},
        {"unit_file": "twice", "state": "enabled", "state": null},
        {"unit_file": null, "state": "disabled", "unit_file": "d.service"}
    ])");
    ASSERT_TRUE(units);
    EXPECT_THAT(*units, ElementsAre(ListedUnit{"b.service", "enabled"}, ListedUnit{"a.service", "masked"},
                                    ListedUnit{"c.service", "linked"}, ListedUnit{"d.service", "disabled"}));
}

TEST(UnitListTest, whatIsNoListGivesNothing)
{
    struct Case {
        const char* name;
        std::string text;
    };
    const Case cases[] = {
        {"empty", ""},
        {"text", "0 unit files listed."},
        {"an object", R"({"unit_file": "a.service", "state": "enabled"})"},
        {"a word", R"("a.service")"},
        {"a number", "1"},
        {"null", "null"},
        {"cut off", R"([{"unit_file": "a.service", "state": "enabled"})"},
        {"more behind it", "[] []"},
        {"not UTF-8", "[\"\xff\"]"},
        {"a number that nothing holds", "[1e999]"},
        {"very deep", std::string(5'000'000, '[')},
        {"deeper than any list", std::string(17, '[') + std::string(17, ']')},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_FALSE(UnitList::parsed(c.text));
    }
    EXPECT_THAT(UnitList::parsed("[]"), testing::Optional(IsEmpty()));
    EXPECT_TRUE(UnitList::parsed(std::string(16, '[') + std::string(16, ']')));
}

TEST(UnitListTest, theRealToolsListIsReadAsItsTableShowsIt)
{
    const StartupHome home;
    TempHome::useSystemTools();
    const auto list = [](const char* form) {
        return ChildProcess::run({{"systemctl", "--user", "list-unit-files", "--type=service", form,
                                   "--no-pager", "--no-legend", "--plain"},
                                  {"SYSTEMD_OFFLINE=1"}});
    };
    const auto document = list("--output=json");
    const auto table = list("--output=short");
    if (!document || document->status != 0 || !table)
        GTEST_SKIP() << "there is no systemctl that lists units as JSON";
    std::vector<ListedUnit> shown;
    std::istringstream lines(table->output);
    for (std::string line; std::getline(lines, line);) {
        ListedUnit unit;
        std::istringstream(line) >> unit.name >> unit.state;
        shown.push_back(unit);
    }
    EXPECT_EQ(UnitList::parsed(document->output), shown);
}

} // namespace orlen
