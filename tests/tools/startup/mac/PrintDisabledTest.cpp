#include "tools/startup/mac/PrintDisabled.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PrintDisabledTest, aLineNamesADisabledLabel)
{
    struct Case {
        const char* name;
        const char* line;
        bool isDisabled;
    };
    const Case cases[] = {
        {"the word", "\t\"org.example.agent\" => disabled", true},
        {"the older answer", "\"org.example.agent\" => true", true},
        {"without quotes", "  org.example.agent\t=>\tdisabled,", true},
        {"with a carriage return", "\"org.example.agent\" => disabled\r", true},
        {"no spaces at all", "org.example.agent=>disabled", true},
        {"enabled", "\"org.example.agent\" => enabled", false},
        {"not disabled", "\"org.example.agent\" => false", false},
        {"disabled further on", "\"org.example.agent\" => not disabled", false},
        {"no arrow", "\"org.example.agent\" disabled", false},
        {"two arrows", "\"org.example.agent\" => disabled => true", false},
        {"nothing behind the arrow", "\"org.example.agent\" =>", false},
        {"another label", "\"org.example.agent.updater\" => disabled", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(PrintDisabled::labels(c.line).contains("org.example.agent"), c.isDisabled);
    }
}

TEST(PrintDisabledTest, everyLineCounts)
{
    EXPECT_THAT(PrintDisabled::labels("disabled services = {\n\t\"b\" => disabled\n\t\"a b\" => true\n"
                                      "\t\"c\" => enabled\n}\n\"d\" => disabled"),
                ElementsAre("a b", "b", "d"));
    EXPECT_THAT(PrintDisabled::labels(""), IsEmpty());
}

} // namespace orlen
