#include "scan/photos/PhotoAnalyzer.h"

#include "platform/text/PathText.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/ScanTexts.h"
#include "scan/photos/KeeperChoice.h"
#include "scan/photos/OnAllCores.h"
#include "scan/photos/PageGroups.h"
#include "scan/photos/PhotoGroups.h"
#include "scan/photos/PhotoRules.h"
#include "scan/photos/PictureMemory.h"
#include "scan/photos/SamePicture.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <iterator>
#include <mutex>
#include <utility>

namespace orlen {

namespace {

constexpr float kLeastConfidence = 0.15F;

PhotoInfo photoInfo(const Cand& cand, ImageAnalysis analysis)
{
    PhotoInfo photo{cand,           std::move(analysis.print), analysis.sharpness, {},
                    analysis.width, analysis.height,           analysis.traits};
    for (const ImageLabel& label : analysis.labels) {
        if (label.confidence > kLeastConfidence)
            photo.labels.push_back({PathText::asciiLower(label.identifier), label.confidence});
    }
    return photo;
}

Message similarNote(const PhotoInfo& photo, const SamePicture::Frame& keeper)
{
    Message similar{ScanTexts::kSimilar,
                    {{"name", std::string(PathText::lastComponent(keeper.photo->cand.path))}}};
    return Message::joined({std::move(similar), KeeperChoice::reason(photo, keeper)}, Several::Joint::facts);
}

} // namespace

PhotoAnalyzer::Found PhotoAnalyzer::run(const std::vector<Cand>& images) const
{
    if (images.empty())
        return {};
    const Analyzed analyzed = analyze(images);
    return {findings(analyzed.photos, m_flag.token(), m_look), analyzed.coverage};
}

PhotoAnalyzer::Analyzed PhotoAnalyzer::analyze(const std::vector<Cand>& images) const
{
    AllKnown known = recall(images);
    std::vector<std::size_t> chosen;
    for (std::size_t i = 0; i < images.size(); ++i) {
        if (known[i])
            m_progress.tick(images[i].path);
        else if (chosen.size() < kMostNew)
            chosen.push_back(i);
    }
    const auto recalled = std::ranges::count_if(known, [](const auto& one) { return one != nullptr; });
    m_progress.expect(StepKind::photos, {recalled, recalled + static_cast<std::int64_t>(chosen.size())});
    look(images, chosen, known);
    remember(images, chosen, known);
    Analyzed analyzed{.photos = {}, .coverage = {.all = static_cast<std::int64_t>(images.size())}};
    analyzed.photos.reserve(
        static_cast<std::size_t>(std::ranges::count_if(known, [](const auto& one) { return one && *one; })));
    for (std::size_t i = 0; i < images.size(); ++i) {
        analyzed.coverage.lookedAt += known[i] ? 1 : 0;
        if (known[i] && *known[i])
            analyzed.photos.push_back(photoInfo(images[i], std::move(**known[i])));
        known[i].reset();
    }
    return analyzed;
}

PhotoAnalyzer::AllKnown PhotoAnalyzer::recall(const std::vector<Cand>& images) const
{
    if (m_memory == nullptr)
        return AllKnown(images.size());
    return m_memory->recall(images, std::chrono::system_clock::now());
}

void PhotoAnalyzer::look(const std::vector<Cand>& images, const std::vector<std::size_t>& chosen,
                         AllKnown& known) const
{
    std::mutex lock;
    onAllCores(chosen.size(), [&](std::size_t i) {
        if (m_flag.isCancelled())
            return;
        const Cand& image = images[chosen[i]];
        m_progress.tick(image.path);
        auto analysis = std::make_unique<std::optional<ImageAnalysis>>(m_recognize(image.path));
        // A call that was cancelled says nothing about the picture.
        if (!*analysis && m_flag.isCancelled())
            return;
        m_progress.advance(StepKind::photos, 1);
        const std::lock_guard held(lock);
        known[chosen[i]] = std::move(analysis);
    });
}

void PhotoAnalyzer::remember(const std::vector<Cand>& images, const std::vector<std::size_t>& looked,
                             const AllKnown& known) const
{
    if (m_memory == nullptr)
        return;
    // If nothing at all could be read, the recognizer is to blame, not the pictures.
    const bool isWorking = std::ranges::any_of(looked, [&](std::size_t i) { return known[i] && *known[i]; });
    std::vector<PictureMemory::Learned> learned;
    for (const std::size_t i : looked) {
        if (isWorking && known[i] && images[i].stamp)
            learned.emplace_back(*images[i].stamp, *known[i]);
    }
    m_memory->remember(learned, std::chrono::system_clock::now());
}

std::vector<Finding> PhotoAnalyzer::findings(const std::vector<PhotoInfo>& photos,
                                             const std::stop_token& stop, const CloserLook& look)
{
    constexpr std::array kKinds{FindingKind::photoDuplicates, FindingKind::screenshots, FindingKind::receipts,
                                FindingKind::memes, FindingKind::blurry};
    std::array<std::vector<FileEntry>, kKinds.size()> entries;
    std::vector<bool> isListed(photos.size());
    std::vector<PhotoGroups::Group> groups = PhotoGroups::of(photos, stop);
    if (look)
        groups = PageGroups::checked(photos, std::move(groups), look, stop);
    for (const PhotoGroups::Group& group : groups) {
        const SamePicture::Frame keeper(photos[group.keeper]);
        for (const std::size_t other : group.others) {
            isListed[other] = true;
            FileEntry& similar = entries.front().emplace_back(
                toEntryByContent(photos[other].cand, similarNote(photos[other], keeper)));
            similar.kept = toKept(keeper.photo->cand);
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
