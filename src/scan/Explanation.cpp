#include "scan/Explanation.h"

#include "clean/Safety.h"
#include "model/Rater.h"
#include "platform/desktop/RecentDocuments.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "scan/LargeAndOld.h"
#include "scan/ScanProgress.h"
#include "scan/locations/OldDownloads.h"
#include "scan/locations/SourceReader.h"
#include "scan/walk/WalkRules.h"

#include <chrono>
#include <optional>
#include <utility>

namespace orlen {

namespace {

/// Whether the walk of the home folder comes across the path.
bool isWalked(const std::string& path)
{
    using WalkRules::FolderNature;
    const std::string& home = Places::current().home;
    if (!PathText::isAtOrBelow(path, home) || Safety::protectsContents(path))
        return false;
    const auto names = PathText::components(std::string_view(path).substr(home.size()));
    if (names.empty() || WalkRules::isLeftOutAtTop(names.front()) || names.back().starts_with('.'))
        return false;
    std::string folder = home;
    for (std::size_t i = 0; i + 1 < names.size(); ++i) {
        folder = PathText::join(folder, names[i]);
        if (WalkRules::isLeftOut(names[i]) || !isRealFolder(folder) || Safety::protectsContents(folder))
            return false;
        const FolderNature nature = WalkRules::natureOf(folder);
        if (nature != FolderNature::plain && nature != FolderNature::workTree)
            return false;
    }
    return true;
}

std::vector<Finding> walkedFindings(const std::string& path, std::int64_t largeThreshold,
                                    const RecentDocuments& recent, const std::stop_token& stop)
{
    const auto status = statusOf(path);
    if (!status.ok() || status.value().type != FileType::regular || !isWalked(path))
        return {};
    return largeAndOld({{path, status.value().allocatedBytes, status.value().modified, {}}}, largeThreshold,
                       std::chrono::system_clock::now(), recent, stop);
}

/// The line that excludes the path, or else an entry of the findings.
std::optional<Exclusion> exclusionOf(const std::string& path, const std::vector<Finding>& findings,
                                     const Exclusions& exclusions)
{
    const Exclusion* line = exclusions.excludes(path);
    for (const Finding& finding : findings) {
        if (line == nullptr)
            line = exclusions.excludes(finding.items.front().path);
    }
    return line == nullptr ? std::nullopt : std::optional(*line);
}

} // namespace

Explanation explain(const std::string& path, std::int64_t largeThreshold, const Exclusions& exclusions,
                    const std::stop_token& stop)
{
    Explanation told{.path = path};
    told.exists = exists(path);
    told.protection = Safety::protection(path);
    told.exclusion = exclusionOf(path, {}, exclusions);
    if (!told.exists)
        return told;
    told.size = FS::entry(path, {}, stop).size;

    const RecentDocuments recent = RecentDocuments::ofUser(Places::current());
    ScanProgress progress;
    std::vector<Finding> findings;
    if (auto held = SourceReader(progress, stop).holding(path);
        held && (held->kind != FindingKind::oldDownloads ||
                 OldDownloads::isOld(held->entry.path, std::chrono::system_clock::now(), recent)))
        findings.push_back(Finding(held->kind, {std::move(held->entry)}));
    if (told.protection == Protection::none) {
        for (Finding& finding : walkedFindings(path, largeThreshold, recent, stop)) {
            if (!finding.items.empty())
                findings.push_back(std::move(finding));
        }
    }
    told.findings = Rater::rate(std::move(findings));
    told.exclusion = exclusionOf(path, told.findings, exclusions);
    return told;
}

} // namespace orlen
