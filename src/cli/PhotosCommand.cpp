#include "cli/CliTexts.h"
#include "cli/FindingTable.h"
#include "cli/FolderSearch.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Rater.h"
#include "model/Words.h"
#include "platform/images/ImageWorkers.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/photos/PageGroups.h"
#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/PictureMemory.h"
#include "scan/walk/Walk.h"

#include <iterator>
#include <limits>
#include <utility>

namespace orlen {

namespace {

using Seconds = std::chrono::duration<double>;

struct PhotoSearch {
    std::vector<PhotoInfo> photos;
    PhotoCoverage coverage;
    std::vector<Finding> findings; ///< all five, rated as in a scan
    Seconds duration{0};
};

/// All findings without what is excluded, even if nothing is left of one.
std::vector<Finding> allowed(std::vector<Finding> findings, const Exclusions& exclusions)
{
    for (Finding& finding : findings) {
        std::erase_if(finding.items,
                      [&](const FileEntry& entry) { return exclusions.excludes(entry.path) != nullptr; });
    }
    return findings;
}

void printFindings(const PhotoSearch& found)
{
    std::vector<Finding> offered;
    std::int64_t entries = 0;
    std::int64_t bytes = 0;
    for (const Finding& finding : found.findings) {
        if (finding.items.empty())
            continue;
        offered.push_back(finding);
        entries += static_cast<std::int64_t>(finding.items.size());
        bytes = checkedAdd(bytes, finding.totalSize());
    }
    const Colours colours = Session::colours();
    const Message headline = offered.empty()
                                 ? CliTexts::kNoPhotos
                                 : Message{CliTexts::kPhotos, {{"count", entries}, {"size", Bytes{bytes}}}};
    const Message lookedAt{CliTexts::kLookedAtIn,
                           {{"count", std::ssize(found.photos)}, {"time", found.duration}}};
    Session::print(colours.styled(Style::bold, shown(headline)) + '\n' +
                   colours.styled(Style::dim, shown(lookedAt)) + '\n');
    if (!offered.empty()) {
        const Table table = FindingTable::of(offered, std::numeric_limits<std::size_t>::max());
        Session::print('\n' + table.text(colours, Session::width()));
    }
}

class PhotosCommand final : public FolderCommand<PhotoSearch> {
public:
    PhotosCommand() : FolderCommand({"photos", CliTexts::kPhotosSummary}, CliTexts::kPhotoFoldersHelp) {}

private:
    [[nodiscard]] PhotoSearch search(const std::vector<std::string>& folders, const Exclusions& exclusions,
                                     ScanProgress& progress, const std::stop_token& stop) override
    {
        const auto started = std::chrono::steady_clock::now();
        ScanFlag flag;
        const std::stop_callback cancel(stop, [&] { flag.cancel(); });
        const Walk::Found found = FolderSearch::walked(folders, progress, stop);
        ImageWorkers workers({});
        PictureMemory memory;
        const PhotoAnalyzer analyzer(
            progress, flag, [&](const std::string& path) { return workers.analyze(path, flag.token()); },
            &memory);
        auto [photos, coverage] = analyzer.analyze(found.images);
        PhotoSearch search{std::move(photos), coverage};
        if (!stop.stop_requested()) {
            auto findings =
                PhotoAnalyzer::findings(search.photos, stop, PageGroups::lookingThrough(workers, stop));
            search.findings = Rater::rate(allowed(std::move(findings), exclusions));
        }
        search.duration = std::chrono::steady_clock::now() - started;
        return search;
    }

    [[nodiscard]] JsonDocuments::Json document(const PhotoSearch& found) const override
    {
        return JsonDocuments::photos(found.findings, found.photos, found.coverage, found.duration);
    }

    void print(const PhotoSearch& found) const override { printFindings(found); }

    [[nodiscard]] ExitStatus ended(Session& session) const override
    {
        if (!ImageWorkers::recognizer().empty())
            return ExitStatus::done;
        session.complain(CliTexts::kNoRecognizer);
        return ExitStatus::someFailed;
    }
};

} // namespace

std::unique_ptr<Command> makePhotosCommand()
{
    return std::make_unique<PhotosCommand>();
}

} // namespace orlen
