#include "model/KeptSets.h"

#include <string_view>
#include <unordered_map>

namespace orlen {

std::vector<KeptSet> keptSets(const std::vector<FileEntry>& entries)
{
    std::vector<KeptSet> sets;
    std::unordered_map<std::string_view, std::size_t> known;
    for (std::size_t number = 0; number < entries.size(); ++number) {
        const auto& kept = entries[number].kept;
        if (!kept) {
            sets.push_back({{}, {number}});
            continue;
        }
        const auto [at, isNew] = known.try_emplace(kept->path, sets.size());
        if (isNew)
            sets.push_back({kept->path, {}});
        sets[at->second].entries.push_back(number);
    }
    return sets;
}

} // namespace orlen
