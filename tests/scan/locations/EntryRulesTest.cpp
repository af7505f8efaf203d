#include "scan/locations/EntryRules.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

TEST(EntryRulesTest, logsAreToldByTheirNames)
{
    struct Case {
        const char* name;
        bool isLog;
    };
    constexpr Case cases[] = {
        {"Xorg.0.log", true},     {"Xorg.0.log.old", true}, {"a.log.1", true},        {"a.log.2.gz", true},
        {"a.log-20250301", true}, {"a.log.bak", true},      {"a.log.zst", true},      {"a.log.b.log.7", true},
        {"a.log.txt", false},     {"a.log-", false},        {"a.log.", false},        {"catalog", false},
        {"a.logs", false},        {"a.LOG", false},         {"a.log.old.txt", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(EntryRules::isLogName(c.name), c.isLog);
    }
}

} // namespace
} // namespace orlen
