#include "window/lists/RowSteps.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace orlen::RowSteps {

namespace {

using Counts = std::unordered_map<std::string_view, int>;

Counts countsOf(std::span<const std::string> keys)
{
    Counts counts;
    for (const std::string& key : keys)
        ++counts[key];
    return counts;
}

/// Uses up one row with this key; false when none is left.
bool takeOne(Counts& counts, std::string_view key)
{
    const auto count = counts.find(key);
    return count != counts.end() && count->second-- > 0;
}

/// The keys of `shown` that are also in `wanted`. Adds steps that remove the others, from the end.
std::vector<std::string_view> kept(std::span<const std::string> shown, std::span<const std::string> wanted,
                                   std::vector<RowStep>& steps)
{
    Counts left = countsOf(wanted);
    std::vector<std::string_view> keys;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        const int row = static_cast<int>(at);
        if (takeOne(left, shown[at]))
            keys.emplace_back(shown[at]);
        else if (!steps.empty() && steps.back().row + steps.back().count == row)
            ++steps.back().count;
        else
            steps.push_back({RowStep::Kind::remove, row});
    }
    std::reverse(steps.begin(), steps.end());
    return keys;
}

} // namespace

std::vector<RowStep> between(std::span<const std::string> shown, std::span<const std::string> wanted)
{
    std::vector<RowStep> steps;
    std::vector<std::string_view> keys = kept(shown, wanted, steps);
    Counts left;
    for (const std::string_view key : keys)
        ++left[key];
    auto next = keys.begin(); // the current row; everything above it is already as wanted
    for (std::size_t at = 0; at < wanted.size(); ++at) {
        const int row = static_cast<int>(at);
        if (!takeOne(left, wanted[at])) {
            const bool isRun = !steps.empty() && steps.back().kind == RowStep::Kind::insert &&
                               steps.back().row + steps.back().count == row;
            if (isRun)
                ++steps.back().count;
            else
                steps.push_back({RowStep::Kind::insert, row});
            continue;
        }
        const auto found = std::find(next, keys.end(), wanted[at]);
        if (found != next)
            steps.push_back({RowStep::Kind::move, row + static_cast<int>(found - next), 1, row});
        std::rotate(next, found, found + 1);
        ++next;
    }
    return steps;
}

} // namespace orlen::RowSteps
