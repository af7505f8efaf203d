#include "scan/locations/LocationScanners.h"

#include "scan/locations/OldDownloads.h"
#include "scan/locations/mac/LanguagePacks.h"

#include <algorithm>
#include <iterator>

namespace orlen {

const SourceReader& LocationScanners::reader() const
{
    std::call_once(m_isRead, [this] { m_reader.emplace(m_progress, m_stop, m_unreadable); });
    return *m_reader;
}

std::vector<Finding> LocationScanners::read(std::initializer_list<FindingKind> kinds) const
{
    std::vector<Finding> findings;
    for (const FindingKind kind : kinds)
        findings.emplace_back(kind, reader().entries(kind));
    return findings;
}

std::vector<Finding> LocationScanners::cachesAndLogs() const
{
    return read({FindingKind::caches, FindingKind::logs});
}

std::vector<Finding> LocationScanners::backups() const
{
    return read({FindingKind::iosBackups, FindingKind::softwareUpdates});
}

std::vector<Finding> LocationScanners::developer() const
{
    return read({FindingKind::xcodeDerived, FindingKind::xcodeArchives, FindingKind::simulators,
                 FindingKind::deviceSupport});
}

std::vector<Finding> LocationScanners::packageCaches() const
{
    return read({FindingKind::homebrew, FindingKind::npm, FindingKind::pip, FindingKind::gradle});
}

std::vector<Finding> LocationScanners::trashAndMail() const
{
    return read({FindingKind::trash, FindingKind::mailDownloads});
}

std::vector<Finding> LocationScanners::languagePacks() const
{
    std::vector<FileEntry> entries = LanguagePacks::entries(m_unreadable, m_stop);
    std::ranges::move(reader().entries(FindingKind::languagePacks), std::back_inserter(entries));
    return {Finding(FindingKind::languagePacks, std::move(entries))};
}

std::vector<Finding> LocationScanners::downloads(TimePoint now, const RecentDocuments& recent) const
{
    return {Finding(FindingKind::oldDownloads,
                    OldDownloads::entries(reader(), now, recent, m_unreadable, m_stop))};
}

} // namespace orlen
