#include "insight/reader/SpaceReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// Slower growth of a category, in bytes per day, is not worth a sentence.
constexpr double kNotableGrowth = 1'000'000;
/// Forecasts further away than this say nothing, in days.
constexpr double kFarAway = 20 * 365.0;

struct Part {
    const Finding* finding = nullptr;
    std::int64_t bytes = 0;
};

std::vector<Part> largestFirst(const AskContext& context,
                               const std::function<std::int64_t(const Finding&)>& size)
{
    std::vector<Part> parts;
    for (const Finding& finding : context.findings) {
        if (const std::int64_t bytes = size(finding); bytes > 0)
            parts.push_back({&finding, bytes});
    }
    std::ranges::stable_sort(parts, std::greater{}, &Part::bytes);
    return parts;
}

std::int64_t usedOf(const StorageBreakdown& breakdown)
{
    return std::max<std::int64_t>(0, checkedSubtract(breakdown.total, breakdown.free));
}

Message volume(const StorageBreakdown& breakdown)
{
    const std::int64_t used = usedOf(breakdown);
    return {InsightTexts::kVolume,
            {{"free", Bytes{breakdown.free}},
             {"total", Bytes{breakdown.total}},
             {"used", Bytes{used}},
             {"share", Share{static_cast<double>(used) / static_cast<double>(breakdown.total)}}}};
}

/// Whether nothing but files of every kind, or the home folder, is asked about.
bool hasNoKind(const Question& question)
{
    return std::ranges::all_of(question.phrases, [](const Phrase& phrase) {
        return phrase.subject == nullptr || phrase.subject->isAnyFile ||
               phrase.subject->id == SubjectID::home;
    });
}

/// Which category grows the fastest; empty if none does notably.
Message fastestGrowth(const Prediction& prediction)
{
    if (!prediction.enoughData || prediction.perCategory.empty() ||
        prediction.perCategory.front().second < kNotableGrowth)
        return {};
    const auto& [category, rate] = prediction.perCategory.front();
    return {InsightTexts::kGrowsFastest,
            {{"category", within(label(category))}, {"size", Bytes{checkedInteger(rate)}}}};
}

/// The first of the parts, which the answer then links to.
Several listed(const std::vector<Part>& parts, std::size_t most, Answer& answer)
{
    Several list{{}, Several::Joint::commas};
    for (std::size_t i = 0; i < std::min(parts.size(), most); ++i) {
        list.messages.push_back(AskText::sized(within(parts[i].finding->title), parts[i].bytes));
        answer.findingIDs.emplace_back(parts[i].finding->id());
    }
    return list;
}

/// Bytes of the entries rated Review.
std::int64_t reviewSize(const Finding& finding)
{
    std::int64_t bytes = 0;
    for (const FileEntry& entry : finding.items) {
        if (finding.cleanable && finding.effectiveRating(entry) == Rating::review)
            bytes = checkedAdd(bytes, entry.size);
    }
    return bytes;
}

std::int64_t sumOf(const std::vector<Part>& parts)
{
    std::int64_t bytes = 0;
    for (const Part& part : parts)
        bytes = checkedAdd(bytes, part.bytes);
    return bytes;
}

/// As many of the parts, largest first, as reach `wanted`.
std::vector<Part> reaching(std::vector<Part> parts, std::int64_t wanted)
{
    std::int64_t bytes = 0;
    std::size_t count = 0;
    while (count < parts.size() && bytes < wanted)
        bytes = checkedAdd(bytes, parts[count++].bytes);
    parts.resize(count);
    return parts;
}

/// Which findings together free `wanted` bytes, with links to them.
std::vector<Message> proposal(const AskContext& context, std::int64_t wanted, Answer& answer)
{
    constexpr std::size_t kNamed = 6;
    const Place goal{"wanted", Bytes{wanted}};
    const auto safe = largestFirst(context, std::mem_fn(&Finding::safeSize));
    const std::int64_t safeBytes = sumOf(safe);
    if (safeBytes >= wanted) {
        const auto chosen = reaching(safe, wanted);
        return {{InsightTexts::kSafeIsEnough,
                 {goal, {"findings", listed(chosen, kNamed, answer)}, {"size", Bytes{sumOf(chosen)}}}}};
    }
    std::vector<Message> said;
    if (safeBytes == 0)
        said.emplace_back(InsightTexts::kNothingSafe);
    else
        said.push_back({InsightTexts::kAllSafe,
                        {{"size", Bytes{safeBytes}}, {"findings", listed(safe, kNamed, answer)}}});
    const auto rest = reaching(largestFirst(context, reviewSize), wanted - safeBytes);
    if (!rest.empty())
        said.push_back({InsightTexts::kForTheRest, {goal, {"findings", listed(rest, kNamed, answer)}}});
    if (checkedAdd(safeBytes, sumOf(rest)) < wanted)
        said.push_back({InsightTexts::kTooLittle, {goal}});
    return said;
}

} // namespace

std::optional<Answer> spaceNow(const Question& question, const AskContext& context)
{
    const StorageBreakdown& breakdown = context.breakdown;
    if (breakdown.total <= 0)
        return std::nullopt;
    if (const Phrase* const size = question.first(Sense::size)) {
        const bool isEnough = breakdown.free >= size->amount;
        const Text verdict = isEnough ? InsightTexts::kYes : InsightTexts::kNo;
        return Answer{AskText::sentences({verdict, volume(breakdown)}), {}};
    }
    return Answer{volume(breakdown), {}};
}

std::optional<Answer> fullNow(const Question& question, const AskContext& context)
{
    if (context.breakdown.total <= 0)
        return std::nullopt;
    // Whoever says that the disk is full wants to know what to do about it.
    std::optional<Answer> answer = whyFull(question, context);
    const Answer advice = AskEngine::fallback("safe", context);
    answer->text = AskText::lines({answer->text, advice.text});
    return answer;
}

std::optional<Answer> whatIsBiggest(const Question& question, const AskContext& context)
{
    if (!hasNoKind(question))
        return std::nullopt;
    return question.senses.has(Sense::folder) ? biggestFolders(question, context)
                                              : AskEngine::fallback("most", context);
}

std::optional<Answer> biggestFolders(const Question& question, const AskContext& context)
{
    if (!hasNoKind(question))
        return std::nullopt;
    constexpr std::int64_t kNamed = 5;
    constexpr std::int64_t kMost = 20;
    const Phrase* const number = question.first(Sense::number);
    std::vector<CategoryFolder> folders = context.breakdown.folders;
    if (folders.empty())
        return Answer{InsightTexts::kScanForBreakdown, {}};
    std::ranges::stable_sort(folders, std::greater{}, &CategoryFolder::bytes);
    folders.resize(
        std::min(folders.size(),
                 static_cast<std::size_t>(number == nullptr ? kNamed : std::min(number->amount, kMost))));
    std::vector<Message> lines{InsightTexts::kTheBiggest};
    for (const CategoryFolder& folder : folders)
        lines.push_back(
            {InsightTexts::kDownload, {{"name", tilde(folder.path)}, {"size", Bytes{folder.bytes}}}});
    Answer answer{AskText::lines(std::move(lines)), {}};
    for (const CategoryFolder& folder : folders)
        answer.paths.push_back(folder.path);
    return answer;
}

std::optional<Answer> whatMayGo(const Question& question, const AskContext& context)
{
    // "Can I delete it?" and "did I clean up in May?" ask about something else.
    const bool isElse = (question.isBackward && !question.senses.meets({Sense::what, Sense::howMuch})) ||
                        (question.senses.has(Sense::inside) && question.subject() == nullptr);
    if (isElse || !hasNoKind(question))
        return std::nullopt;
    return AskEngine::fallback("safe", context);
}

std::optional<Answer> cleaningDownloads(const Question& question, const AskContext& context)
{
    const auto isOther = [](const Phrase& phrase) {
        return phrase.subject != nullptr && !phrase.subject->isAnyFile &&
               phrase.subject->id != SubjectID::downloads;
    };
    const Subject* const downloads = &subjectFor(SubjectID::downloads);
    const auto isDownloads = [&](const Phrase& phrase) { return phrase.subject == downloads; };
    if (std::ranges::any_of(question.phrases, isOther) ||
        std::ranges::none_of(question.phrases, isDownloads) ||
        !question.senses.meets({Sense::what, Sense::inside, Sense::makeRoom, Sense::cleanUp, Sense::advise}))
        return std::nullopt;
    return AskEngine::fallback("download", context);
}

std::optional<Answer> whyFull(const Question& /*question*/, const AskContext& context)
{
    const StorageBreakdown& breakdown = context.breakdown;
    if (breakdown.total <= 0)
        return std::nullopt;
    Answer answer;
    std::vector<Message> said{
        volume(breakdown),
        {InsightTexts::kByCategory, {{"categories", AskText::largestCategories(breakdown)}}}};
    if (context.findings.empty()) {
        said.emplace_back(InsightTexts::kScanForFindings);
    } else {
        constexpr std::size_t kNamed = 3;
        const auto parts = largestFirst(context, std::mem_fn(&Finding::totalSize));
        said.push_back({InsightTexts::kLargestFindings, {{"findings", listed(parts, kNamed, answer)}}});
    }
    said.push_back(fastestGrowth(context.prediction));
    answer.text = AskText::sentences(std::move(said));
    return answer;
}

std::optional<Answer> fullWhen(const Question& question, const AskContext& context)
{
    const Prediction& prediction = context.prediction;
    if (!prediction.daysLeft)
        return Answer{AskText::forecast(prediction), {}};
    if (*prediction.daysLeft > kFarAway)
        return Answer{AskText::sentences({InsightTexts::kNotForLong, prediction.detail}), {}};
    const auto left = std::chrono::hours(static_cast<int>(*prediction.daysLeft * 24));
    const TimePoint full = context.now + left;
    std::vector<Message> said;
    if (const Phrase* const phrase = question.first(Sense::period); phrase != nullptr) {
        const Period period = coming(*phrase->period, context.now);
        if (period.to <= context.now)
            return std::nullopt;
        said.emplace_back(full < period.to ? InsightTexts::kProbablyYes : InsightTexts::kProbablyNot);
    }
    said.push_back({InsightTexts::kFullAround, {{"date", Moment{full}}}});
    said.push_back(prediction.detail);
    return Answer{AskText::sentences(std::move(said)), {}};
}

std::optional<Answer> roomFor(const Question& question, const AskContext& context)
{
    const Phrase* const size = question.first(Sense::size);
    if (size == nullptr || size->amount <= 0)
        return std::nullopt;
    // "Do I have 5 GB free?" asks for no proposal.
    const auto behind = std::span(question.phrases).subspan(question.position(Sense::size));
    if (!question.senses.meets({Sense::makeRoom, Sense::remove}) &&
        std::ranges::find(behind, Sense::free, &Phrase::sense) != behind.end())
        return std::nullopt;
    if (context.findings.empty())
        return Answer{InsightTexts::kNoScan, {}};
    Answer answer;
    std::vector<Message> said = proposal(context, size->amount, answer);
    said.emplace_back(InsightTexts::kNothingMovesYet);
    answer.text = AskText::sentences(std::move(said));
    return answer;
}

} // namespace orlen::AskReader
