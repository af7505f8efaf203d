#include "scan/locations/Glob.h"

#include "platform/files/Folder.h"
#include "platform/text/NamePattern.h"
#include "platform/text/PathText.h"
#include "scan/UnreadableFolders.h"

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

std::vector<std::string> foldersMatching(const std::string& parent, std::string_view pattern,
                                         UnreadableFolders* unreadable)
{
    std::vector<std::string> names;
    const auto fd = openFolder(parent);
    if (!fd.ok() && unreadable != nullptr)
        unreadable->add(parent, fd.error());
    if (!fd.ok())
        return names;
    FolderReader reader(fd.value().get());
    while (const auto chunk = reader.next()) {
        chunk->forEach([&](const FolderEntry& entry) {
            if (NamePattern::matches(pattern, entry.name) && isFolder(fd.value().get(), entry))
                names.emplace_back(entry.name);
        });
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<Match> extended(const std::vector<Match>& parents, std::string_view component,
                            UnreadableFolders* unreadable)
{
    std::vector<Match> children;
    for (const Match& parent : parents) {
        if (component.find('*') == std::string_view::npos) {
            children.push_back({PathText::join(parent.path, component), parent.names});
            continue;
        }
        for (const std::string& name : foldersMatching(parent.path, component, unreadable)) {
            children.push_back({PathText::join(parent.path, name), parent.names});
            children.back().names.push_back(name);
        }
    }
    return children;
}

} // namespace

bool matchesAny(const std::vector<std::string_view>& patterns, std::string_view name)
{
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](std::string_view pattern) { return NamePattern::matches(pattern, name); });
}

std::vector<Match> paths(const std::string& folder, std::string_view pattern, UnreadableFolders* unreadable)
{
    std::vector<Match> found{{folder, {}}};
    for (const std::string_view component : PathText::components(pattern))
        found = extended(found, component, unreadable);
    return found;
}

} // namespace orlen::Glob
