#include "platform/values/Time.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

using namespace std::chrono_literals;

TEST(TimeTest, textAndTimeAgreeInBothDirections)
{
    const struct {
        const char* text;
        std::chrono::seconds sinceEpoch;
    } cases[] = {{"1970-01-01T00:00:00Z", 0s},
                 {"1969-12-31T23:59:59Z", -1s},
                 {"2000-02-29T12:00:00Z", 951'825'600s},
                 {"2025-03-01T09:30:00Z", 1'740'821'400s},
                 {"1900-01-01T00:00:00Z", -2'208'988'800s},
                 {"2190-12-31T23:59:59Z", 6'974'121'599s}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(isoText(TimePoint(c.sinceEpoch)), c.text);
        EXPECT_EQ(timeFromIso(c.text), TimePoint(c.sinceEpoch));
    }
}

TEST(TimeTest, fractionsAreCutTowardsThePast)
{
    EXPECT_EQ(isoText(TimePoint(999ms)), "1970-01-01T00:00:00Z");
    EXPECT_EQ(isoText(TimePoint(-1ms)), "1969-12-31T23:59:59Z");
}

TEST(TimeTest, otherTextsAreNotRead)
{
    for (const char* text :
         {"", "2025-03-01", "2025-03-01T09:30:00", "2025-03-01T09:30:00.0Z", "2025-03-01T09:30:00z",
          "2025-03-01 09:30:00Z", "2025-02-29T09:30:00Z", "2025-13-01T09:30:00Z", "2025-00-01T09:30:00Z",
          "2025-03-00T09:30:00Z", "2025-03-01T24:00:00Z", "2025-03-01T09:60:00Z", "2025-03-01T09:30:60Z",
          "+025-03-01T09:30:00Z", "2025-03-01T09:3 :00Z", "1899-12-31T00:00:00Z", "2191-01-01T00:00:00Z"})
        EXPECT_EQ(timeFromIso(text), std::nullopt) << text;
}

} // namespace
} // namespace orlen
