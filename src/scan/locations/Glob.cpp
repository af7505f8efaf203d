#include "scan/locations/Glob.h"

#include "platform/Folder.h"
#include "platform/PathText.h"

#include <algorithm>

namespace orlen::Glob {

namespace {

bool isFolder(int parent, const FolderEntry& entry)
{
    if (entry.type != EntryType::unknown)
        return entry.type == EntryType::folder;
    const auto status = statusAt(parent, entry.name);
    return status.ok() && status.value().type == FileType::folder;
}

std::vector<std::string> foldersMatching(const std::string& parent, std::string_view pattern)
{
    std::vector<std::string> names;
    const auto fd = openFolder(parent);
    if (!fd.ok())
        return names;
    FolderReader reader(fd.value().get());
    while (const auto chunk = reader.next()) {
        chunk->forEach([&](const FolderEntry& entry) {
            if (matches(pattern, entry.name) && isFolder(fd.value().get(), entry))
                names.emplace_back(entry.name);
        });
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<Match> extended(const std::vector<Match>& parents, std::string_view component)
{
    std::vector<Match> children;
    for (const Match& parent : parents) {
        if (component.find('*') == std::string_view::npos) {
            children.push_back({PathText::join(parent.path, component), parent.names});
            continue;
        }
        for (const std::string& name : foldersMatching(parent.path, component)) {
            children.push_back({PathText::join(parent.path, name), parent.names});
            children.back().names.push_back(name);
        }
    }
    return children;
}

} // namespace

bool matches(std::string_view pattern, std::string_view name)
{
    // Only the last "*" ever needs another try: what earlier ones swallowed was the shortest that fits.
    std::size_t star = std::string_view::npos;
    std::size_t retry = 0;
    std::size_t p = 0;
    std::size_t n = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            retry = n;
        } else if (p < pattern.size() && pattern[p] == name[n]) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

bool matchesAny(const std::vector<std::string_view>& patterns, std::string_view name)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](std::string_view pattern) { return matches(pattern, name); });
}

std::vector<Match> paths(const std::string& folder, std::string_view pattern)
{
    std::vector<Match> found{{folder, {}}};
    for (const std::string_view component : PathText::components(pattern))
        found = extended(found, component);
    return found;
}

} // namespace orlen::Glob
