#include "window/photos/PhotoSets.h"

#include "platform/text/PathText.h"

#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orlen::PhotoSets {

namespace {

constexpr std::string_view kBeforeName = "Similar to ";
constexpr std::string_view kAfterName = " — keeping the sharpest";

/// Finds the keepers of all entries that name one.
class Search {
public:
    Search(std::span<const FileEntry> entries, const Exists& exists) : m_exists(exists)
    {
        // What the finding lists is not kept, whatever its name.
        for (const FileEntry& entry : entries)
            m_listed.insert(entry.path);
        for (const FileEntry& entry : entries) {
            const auto name = keeperName(entry);
            const std::string place = name ? placeBeside(entry, *name) : std::string();
            if (!place.empty())
                m_places[*name].insert(place);
        }
    }

    /// Beside the entry itself; else the one place beside any other entry of the same keeper. Of several such
    /// places none is better than the others.
    [[nodiscard]] std::string keeperOf(const FileEntry& entry, std::string_view name)
    {
        std::string beside = placeBeside(entry, name);
        if (!beside.empty())
            return beside;
        const auto places = m_places.find(name);
        return places != m_places.end() && places->second.size() == 1 ? *places->second.begin()
                                                                      : std::string();
    }

private:
    [[nodiscard]] std::string placeBeside(const FileEntry& entry, std::string_view name)
    {
        std::string place = PathText::join(PathText::parent(entry.path), name);
        if (m_listed.contains(place))
            return {};
        const auto [known, isNew] = m_found.try_emplace(place, false);
        if (isNew)
            known->second = m_exists(place);
        return known->second ? place : std::string();
    }

    const Exists& m_exists;
    std::unordered_set<std::string_view> m_listed;
    std::unordered_map<std::string, bool> m_found;
    std::map<std::string_view, std::set<std::string>> m_places; ///< of the keepers of one name
};

} // namespace

std::optional<std::string_view> keeperName(const FileEntry& entry)
{
    if (!entry.note || !entry.note->starts_with(kBeforeName))
        return std::nullopt;
    const std::string_view rest = std::string_view(*entry.note).substr(kBeforeName.size());
    const std::size_t end = rest.find(kAfterName);
    if (end == 0 || end == std::string_view::npos)
        return std::nullopt;
    return rest.substr(0, end);
}

std::vector<PhotoSet> of(std::span<const FileEntry> entries, const Exists& exists)
{
    Search search(entries, exists);
    std::vector<PhotoSet> sets;
    std::map<std::pair<std::string_view, std::string>, std::size_t> known;
    for (std::size_t number = 0; number < entries.size(); ++number) {
        const auto name = keeperName(entries[number]);
        if (!name) {
            sets.push_back({{}, {}, {number}});
            continue;
        }
        std::string keeper = search.keeperOf(entries[number], *name);
        const auto [at, isNew] = known.try_emplace({*name, keeper}, sets.size());
        if (isNew)
            sets.push_back({std::string(*name), std::move(keeper), {}});
        sets[at->second].entries.push_back(number);
    }
    return sets;
}

} // namespace orlen::PhotoSets
