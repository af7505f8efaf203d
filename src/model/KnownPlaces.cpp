#include "model/KnownPlaces.h"

#include "platform/files/Places.h"
#include "platform/text/NamePattern.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <utility>

namespace orlen {

namespace {

using Components = std::span<const std::string_view>;

constexpr std::string_view kCache = "{CACHE}";

/// Cache folders of sandboxed applications, below the home folder.
constexpr std::array<std::string_view, 3> kSandboxCaches{".var/app/*/cache", "snap/*/*/.cache",
                                                         ".snap/data/*/*/.cache"};

bool startsWith(Components path, Components pattern)
{
    return path.size() >= pattern.size() &&
           std::ranges::equal(pattern, path.first(pattern.size()), NamePattern::matches);
}

} // namespace

KnownPlaces::KnownPlaces(const Places& places)
{
    for (const RaterTables::KnownLocation& row : RaterTables::knownPlaces()) {
        if (row.where.starts_with('*')) {
            add(row, {}, row.where);
            continue;
        }
        const std::size_t word = row.where.find('}') + 1;
        const std::string_view below = row.where.substr(word);
        for (std::string& folder : places.expand(row.where.substr(0, word)))
            add(row, std::move(folder), below);
        if (row.where.starts_with(kCache)) {
            for (const std::string_view cache : kSandboxCaches) {
                add(row, places.home, cache);
                std::ranges::copy(PathText::components(below), std::back_inserter(m_places.back().pattern));
            }
        }
    }
}

void KnownPlaces::add(const RaterTables::KnownLocation& row, std::string folder, std::string_view pattern)
{
    m_places.push_back({&row, std::move(folder), PathText::components(pattern)});
}

const RaterTables::KnownLocation* KnownPlaces::holding(std::string_view path) const
{
    const std::vector<std::string_view> whole = PathText::components(path);
    const auto holds = [&](const Place& place) {
        if (!place.folder.empty())
            return PathText::isAtOrBelow(path, place.folder) &&
                   startsWith(PathText::components(path.substr(place.folder.size())), place.pattern);
        for (Components rest = whole; !rest.empty(); rest = rest.subspan(1)) {
            if (startsWith(rest, place.pattern))
                return true;
        }
        return false;
    };
    const auto found = std::ranges::find_if(m_places, holds);
    return found == m_places.end() ? nullptr : found->row;
}

} // namespace orlen
