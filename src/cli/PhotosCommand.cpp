#include "app/Format.h"
#include "cli/FindingTable.h"
#include "cli/FolderSearch.h"
#include "cli/JsonDocuments.h"
#include "cli/Texts.h"
#include "model/Rater.h"
#include "platform/images/ImageWorkers.h"
#include "platform/text/ByteCount.h"
#include "platform/values/CheckedSum.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/PictureMemory.h"
#include "scan/walk/Walk.h"

#include <limits>

namespace orlen {

namespace {

using Seconds = std::chrono::duration<double>;

struct PhotoSearch {
    std::vector<PhotoInfo> photos;
    std::vector<Finding> findings; ///< all five, rated as in a scan
    Seconds duration{0};
};

/// All findings without what is excluded, even if nothing is left of one.
std::vector<Finding> offered(std::vector<Finding> findings, const Exclusions& exclusions)
{
    for (Finding& finding : findings) {
        std::erase_if(finding.items,
                      [&](const FileEntry& entry) { return exclusions.excludes(entry.path) != nullptr; });
    }
    return findings;
}

void printFindings(const PhotoSearch& found)
{
    std::vector<Finding> shown;
    std::int64_t entries = 0;
    std::int64_t bytes = 0;
    for (const Finding& finding : found.findings) {
        if (finding.items.empty())
            continue;
        shown.push_back(finding);
        entries += static_cast<std::int64_t>(finding.items.size());
        bytes = checkedAdd(bytes, finding.totalSize());
    }
    const Colours colours = Session::colours();
    const std::string headline = shown.empty() ? std::string(Texts::kNoPhotos)
                                               : Format::counted(entries, "photo") + ", " + byteCount(bytes);
    const auto photos = static_cast<std::int64_t>(found.photos.size());
    Session::print(colours.styled(Style::bold, headline) + '\n' +
                   colours.styled(Style::dim, Format::counted(photos, "picture") + " looked at in " +
                                                  Format::duration(found.duration.count())) +
                   '\n');
    if (!shown.empty())
        Session::print(
            '\n' +
            FindingTable::of(shown, std::numeric_limits<std::size_t>::max()).text(colours, Session::width()));
}

class PhotosCommand final : public FolderCommand<PhotoSearch> {
public:
    PhotosCommand()
        : FolderCommand({"photos", "Find look-alikes, screenshots, receipts, memes and blurry photos"},
                        "Folders to look into; the image folders of the home folder when there are none")
    {
    }

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
        PhotoSearch search{analyzer.analyze(found.images).photos};
        if (!stop.stop_requested())
            search.findings = Rater::rate(offered(PhotoAnalyzer::findings(search.photos, stop), exclusions));
        search.duration = std::chrono::steady_clock::now() - started;
        return search;
    }

    [[nodiscard]] JsonDocuments::Json document(const PhotoSearch& found) const override
    {
        return JsonDocuments::photos(found.findings, found.photos, found.duration);
    }

    void print(const PhotoSearch& found) const override { printFindings(found); }

    [[nodiscard]] ExitStatus ended(Session& session) const override
    {
        if (!ImageWorkers::recognizer().empty())
            return ExitStatus::done;
        session.complain(Texts::kNoRecognizer);
        return ExitStatus::someFailed;
    }
};

} // namespace

std::unique_ptr<Command> makePhotosCommand()
{
    return std::make_unique<PhotosCommand>();
}

} // namespace orlen
