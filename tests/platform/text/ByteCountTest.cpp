#include "platform/text/ByteCount.h"

#include <gtest/gtest.h>

#include <limits>

namespace orlen {
namespace {

TEST(ByteCountTest, roundsToTheUnitThatTheRoundedValueHas)
{
    struct Case {
        const char* name;
        std::int64_t bytes;
        const char* text;
    };
    constexpr Case cases[] = {
        {"lowest", std::numeric_limits<std::int64_t>::min(), "0 bytes"},
        {"negative", -1, "0 bytes"},
        {"nothing", 0, "0 bytes"},
        {"singular", 1, "1 byte"},
        {"plural", 2, "2 bytes"},
        {"last in bytes", 999, "999 bytes"},
        {"first kilobyte", 1'000, "1 KB"},
        {"kilobytes below half", 12'499, "12 KB"},
        {"kilobytes from half on", 12'500, "13 KB"},
        {"last in kilobytes", 999'499, "999 KB"},
        {"rounds up to a megabyte", 999'500, "1 MB"},
        {"one below a megabyte", 999'999, "1 MB"},
        {"decimal that would be 0", 1'049'999, "1 MB"},
        {"first decimal", 1'050'000, "1.1 MB"},
        {"whole number of megabytes", 500'000'000, "500 MB"},
        {"last in megabytes", 999'949'999, "999.9 MB"},
        {"rounds up to a gigabyte", 999'950'000, "1 GB"},
        {"gigabytes", 1'234'567'890, "1.2 GB"},
        {"rounds up to a terabyte", 999'950'000'000, "1 TB"},
        {"one below that", 999'949'999'999, "999.9 GB"},
        {"no unit above terabytes", 1'000'000'000'000'000, "1000 TB"},
        {"largest", std::numeric_limits<std::int64_t>::max(), "9223372 TB"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(byteCount(c.bytes), c.text);
    }
}

} // namespace
} // namespace orlen
