#include "window/lists/RowSteps.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace orlen {

namespace {

using Keys = std::vector<std::string>;
using enum RowStep::Kind;

Keys applied(Keys keys, const Keys& wanted, const std::vector<RowStep>& steps)
{
    for (const RowStep& step : steps) {
        const auto at = keys.begin() + step.row;
        if (step.kind == remove)
            keys.erase(at, at + step.count);
        else if (step.kind == insert)
            keys.insert(at, wanted.begin() + step.row, wanted.begin() + step.row + step.count);
        else
            std::rotate(keys.begin() + step.to, at, at + 1);
    }
    return keys;
}

} // namespace

TEST(RowStepsTest, takesNoMoreStepsThanTheChangeNeeds)
{
    struct Case {
        const char* name;
        Keys shown;
        Keys wanted;
        std::vector<RowStep> steps;
    };
    const Case cases[] = {
        {"nothing changes", {"a", "b"}, {"a", "b"}, {}},
        {"rows in the middle go", {"a", "b", "c", "d"}, {"a", "d"}, {{remove, 1, 2}}},
        {"rows come first", {"c"}, {"a", "b", "c"}, {{insert, 0, 2}}},
        {"the last becomes the first", {"a", "b", "c"}, {"c", "a", "b"}, {{move, 2, 1, 0}}},
        {"one is replaced", {"a", "b"}, {"a", "x"}, {{remove, 1, 1}, {insert, 1, 1}}},
        {"one of two alike goes", {"a", "a"}, {"a"}, {{remove, 1, 1}}},
        {"rows apart go", {"a", "b", "c"}, {"b"}, {{remove, 2, 1}, {remove, 0, 1}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(RowSteps::between(c.shown, c.wanted), c.steps);
    }
}

TEST(RowStepsTest, leadsFromAnyListToAnyOther)
{
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same lists every time
    std::uniform_int_distribution<int> letter(0, 9);
    std::uniform_int_distribution<int> length(0, 12);
    const auto list = [&] {
        Keys keys(static_cast<std::size_t>(length(random)));
        std::generate(keys.begin(), keys.end(), [&] { return std::string(1, char('a' + letter(random))); });
        return keys;
    };
    for (int round = 0; round < 500; ++round) {
        const Keys shown = list();
        const Keys wanted = list();
        EXPECT_EQ(applied(shown, wanted, RowSteps::between(shown, wanted)), wanted);
    }
}

} // namespace orlen
