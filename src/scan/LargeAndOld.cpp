#include "scan/LargeAndOld.h"

#include "scan/FS.h"
#include "scan/tree/CurrentMounts.h"

#include <algorithm>
#include <unordered_set>

namespace orlen {

namespace {

constexpr std::size_t kLargeLimit = 300;
constexpr std::size_t kOldLimit = 400;
constexpr std::int64_t kOldBytes = 10'000'000;
constexpr std::chrono::seconds kOldAge{31'536'000}; // 365 days

/// The largest entries, at most `limit`; ties keep their order.
void keepLargest(std::vector<FileEntry>& entries, std::size_t limit)
{
    std::stable_sort(entries.begin(), entries.end(),
                     [](const FileEntry& a, const FileEntry& b) { return a.size > b.size; });
    if (entries.size() > limit)
        entries.resize(limit);
}

std::vector<FileEntry> largeFiles(const std::vector<Cand>& cands, std::int64_t threshold)
{
    std::vector<FileEntry> entries;
    for (const Cand& cand : cands) {
        if (cand.size >= threshold)
            entries.push_back(toEntry(cand));
    }
    keepLargest(entries, kLargeLimit);
    return entries;
}

/// Files that have not changed for long and are not listed as large.
std::vector<FileEntry> unchangedFiles(const std::vector<Cand>& cands, const std::vector<FileEntry>& large,
                                      TimePoint cutOff)
{
    std::unordered_set<std::string_view> largePaths;
    for (const FileEntry& entry : large)
        largePaths.insert(entry.path);
    std::vector<FileEntry> entries;
    for (const Cand& cand : cands) {
        if (cand.size >= kOldBytes && cand.modified < cutOff && !largePaths.contains(cand.path))
            entries.push_back(toEntry(cand));
    }
    keepLargest(entries, kOldLimit);
    return entries;
}

/// Looks up when files were last opened, and drops those opened since the cut-off.
void dropRecentlyOpened(std::vector<FileEntry>& entries, TimePoint cutOff, const RecentDocuments& recent,
                        const std::stop_token& stop)
{
    const auto mounts = CurrentMounts::table();
    std::erase_if(entries, [&](FileEntry& entry) {
        if (stop.stop_requested())
            return true;
        entry.lastOpened = FS::lastOpened(entry.path, recent, *mounts);
        return entry.lastOpened.value_or(*entry.modified) >= cutOff;
    });
}

} // namespace

std::vector<Finding> largeAndOld(const std::vector<Cand>& cands, std::int64_t threshold, TimePoint now,
                                 const RecentDocuments& recent, const std::stop_token& stop)
{
    const TimePoint cutOff = now - kOldAge;
    std::vector<FileEntry> large = largeFiles(cands, threshold);
    std::vector<FileEntry> old = unchangedFiles(cands, large, cutOff);
    dropRecentlyOpened(old, cutOff, recent, stop);
    std::vector<Finding> findings;
    findings.emplace_back(FindingKind::largeFiles, std::move(large));
    findings.emplace_back(FindingKind::oldFiles, std::move(old));
    return findings;
}

} // namespace orlen
