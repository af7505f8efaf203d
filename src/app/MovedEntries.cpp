#include "app/MovedEntries.h"

#include "app/FindingLists.h"
#include "platform/files/FileStatus.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// Whether the stamp describes what is there today. Where something was put back, the time of change may
/// differ, and is renewed.
bool isOf(FileStamp& stamp, const FileStatus& status, bool isPutBack)
{
    const FileStamp today = FileStamp::of(status);
    if (isPutBack)
        stamp.changed = today.changed;
    return stamp == today;
}

bool isUnchanged(FileEntry& entry, const std::set<std::string>& places)
{
    const auto status = statusOf(entry.path);
    if (!status.ok())
        return false;
    // The time of change no longer tells whether somebody wrote to it in the Trash.
    if (status.value().type == FileType::regular && entry.modified &&
        *entry.modified != status.value().modified)
        return false;
    if (entry.stamp && !isOf(*entry.stamp, status.value(), places.contains(entry.path)))
        return false;
    if (!entry.kept)
        return true;
    const auto kept = statusOf(entry.kept->path);
    return kept.ok() && isOf(entry.kept->stamp, kept.value(), places.contains(entry.kept->path));
}

void dropEmpty(std::vector<Finding>& findings)
{
    std::erase_if(findings, [](const Finding& finding) { return finding.items.empty(); });
}

} // namespace

bool MovedEntries::isAbout(const FileEntry& entry, const std::set<std::string>& places)
{
    return FindingLists::isIn(places, entry.path) ||
           (entry.kept && FindingLists::isIn(places, entry.kept->path));
}

std::set<std::string> MovedEntries::take(std::vector<Finding>& from, const std::set<std::string>& selected,
                                         const std::set<std::string>& places)
{
    std::set<std::string> paths;
    std::vector<Finding> taken;
    for (Finding& finding : from) {
        std::vector<FileEntry> left;
        std::vector<FileEntry> gone;
        for (FileEntry& entry : finding.items)
            (isAbout(entry, places) ? gone : left).push_back(std::move(entry));
        for (const FileEntry& entry : gone)
            paths.insert(entry.path);
        finding.items = std::move(gone);
        taken.push_back(finding);
        finding.items = std::move(left);
    }
    dropEmpty(from);
    dropEmpty(taken);
    FindingLists::giveBack(findings, std::move(taken));
    for (const std::string& path : paths) {
        if (selected.contains(path))
            selection.insert(path);
        else
            selection.erase(path);
    }
    return paths;
}

MovedEntries MovedEntries::about(const std::set<std::string>& places) const
{
    MovedEntries rest = *this;
    MovedEntries found;
    (void)found.take(rest.findings, selection, places);
    return found;
}

void MovedEntries::keepUnchanged(const std::set<std::string>& places)
{
    for (Finding& finding : findings)
        std::erase_if(finding.items, [&](FileEntry& entry) { return !isUnchanged(entry, places); });
    dropEmpty(findings);
}

MovedEntries MovedEntries::release(MovedEntries wanted)
{
    for (Finding& finding : wanted.findings) {
        std::set<std::string> asked;
        for (const FileEntry& entry : finding.items)
            asked.insert(entry.path);
        std::set<std::string> held;
        const auto own = std::ranges::find(findings, finding.kind, &Finding::kind);
        if (own != findings.end())
            std::erase_if(own->items, [&](const FileEntry& entry) {
                return asked.contains(entry.path) && held.insert(entry.path).second;
            });
        std::erase_if(finding.items, [&](const FileEntry& entry) { return !held.contains(entry.path); });
    }
    dropEmpty(findings);
    dropEmpty(wanted.findings);
    return wanted;
}

} // namespace orlen
