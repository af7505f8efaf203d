#include "window/lists/RowSteps.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace orlen::RowSteps {

namespace {

/// The keys of `shown` that `wanted` has as well; what goes is added to the steps, from the end.
std::vector<std::string_view> kept(std::span<const std::string> shown, std::span<const std::string> wanted,
                                   std::vector<RowStep>& steps)
{
    std::map<std::string_view, int> left;
    for (const std::string& key : wanted)
        ++left[key];
    std::vector<std::string_view> keys;
    std::vector<int> gone;
    for (std::size_t row = 0; row < shown.size(); ++row) {
        const auto count = left.find(shown[row]);
        if (count != left.end() && count->second-- > 0)
            keys.emplace_back(shown[row]);
        else
            gone.push_back(static_cast<int>(row));
    }
    for (auto row = gone.rbegin(); row != gone.rend(); ++row)
        steps.push_back({RowStep::Kind::remove, *row, 0});
    return keys;
}

} // namespace

std::vector<RowStep> between(std::span<const std::string> shown, std::span<const std::string> wanted)
{
    std::vector<RowStep> steps;
    std::vector<std::string_view> keys = kept(shown, wanted, steps);
    for (std::size_t row = 0; row < wanted.size(); ++row) {
        // Everything above is as wanted already, so there are at least so many.
        const auto here = keys.begin() + static_cast<std::ptrdiff_t>(row);
        if (here != keys.end() && *here == wanted[row])
            continue;
        const auto found = std::find(here, keys.end(), wanted[row]);
        const int to = static_cast<int>(row);
        if (found == keys.end()) {
            steps.push_back({RowStep::Kind::insert, to, 0});
            keys.insert(here, wanted[row]);
        } else {
            steps.push_back({RowStep::Kind::move, static_cast<int>(found - keys.begin()), to});
            std::rotate(here, found, found + 1);
        }
    }
    return steps;
}

} // namespace orlen::RowSteps
