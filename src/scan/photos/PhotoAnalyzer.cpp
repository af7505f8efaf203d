#include "scan/photos/PhotoAnalyzer.h"

#include "platform/text/PathText.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/photos/KeeperChoice.h"
#include "scan/photos/OnAllCores.h"
#include "scan/photos/PhotoGroups.h"
#include "scan/photos/PhotoRules.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <mutex>
#include <utility>

namespace orlen {

namespace {

constexpr float kLeastConfidence = 0.15F;

PhotoInfo photoInfo(const Cand& cand, const ImageAnalysis& analysis)
{
    PhotoInfo photo{cand,           analysis.print,  analysis.sharpness, {},
                    analysis.width, analysis.height, analysis.traits};
    for (const ImageLabel& label : analysis.labels) {
        if (label.confidence > kLeastConfidence)
            photo.labels.push_back({PathText::asciiLower(label.identifier), label.confidence});
    }
    return photo;
}

std::string similarNote(const PhotoInfo& photo, const PhotoInfo& keeper)
{
    std::string note = "Similar to ";
    note += PathText::lastComponent(keeper.cand.path);
    note += " — keeping the sharpest · ";
    note += KeeperChoice::reason(photo, keeper);
    return note;
}

} // namespace

std::vector<Finding> PhotoAnalyzer::run(const std::vector<Cand>& images) const
{
    if (images.empty())
        return {};
    return findings(analyze(images), m_flag.token());
}

std::vector<PhotoInfo> PhotoAnalyzer::analyze(const std::vector<Cand>& images) const
{
    std::mutex lock;
    std::vector<std::optional<PhotoInfo>> analyzed(images.size());
    onAllCores(images.size(), [&](std::size_t i) {
        if (m_flag.isCancelled())
            return;
        m_progress.tick(images[i].path);
        std::optional<ImageAnalysis> analysis = m_recognize(images[i].path);
        if (!analysis)
            return;
        PhotoInfo photo = photoInfo(images[i], *analysis);
        const std::lock_guard held(lock);
        analyzed[i] = std::move(photo);
    });
    std::vector<PhotoInfo> photos;
    for (std::optional<PhotoInfo>& photo : analyzed) {
        if (photo)
            photos.push_back(std::move(*photo));
    }
    return photos;
}

std::vector<Finding> PhotoAnalyzer::findings(const std::vector<PhotoInfo>& photos,
                                             const std::stop_token& stop)
{
    constexpr std::array kKinds{FindingKind::photoDuplicates, FindingKind::screenshots, FindingKind::receipts,
                                FindingKind::memes, FindingKind::blurry};
    std::array<std::vector<FileEntry>, kKinds.size()> entries;
    std::vector<bool> isListed(photos.size());
    for (const PhotoGroups::Group& group : PhotoGroups::of(photos, stop)) {
        for (const std::size_t other : group.others) {
            isListed[other] = true;
            const PhotoInfo& keeper = photos[group.keeper];
            FileEntry& similar = entries.front().emplace_back(
                toEntryByContent(photos[other].cand, similarNote(photos[other], keeper)));
            similar.kept = toKept(keeper.cand);
        }
    }
    for (std::size_t i = 0; i < photos.size(); ++i) {
        const auto verdict = isListed[i] ? std::nullopt : PhotoRules::verdict(photos[i]);
        if (!verdict)
            continue;
        const auto kind = std::find(kKinds.begin(), kKinds.end(), verdict->kind);
        entries[static_cast<std::size_t>(kind - kKinds.begin())].push_back(
            toEntryByContent(photos[i].cand, verdict->note));
    }
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < kKinds.size(); ++i)
        findings.emplace_back(kKinds[i], std::move(entries[i]));
    return findings;
}

} // namespace orlen
