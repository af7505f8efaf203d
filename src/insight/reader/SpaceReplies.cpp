#include "insight/reader/SpaceReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/FindingParts.h"
#include "insight/reader/ForecastReplies.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/Names.h"
#include "insight/reader/QuestionParts.h"
#include "insight/reader/RoomReplies.h"
#include "insight/reader/SubjectReplies.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

std::int64_t usedOf(const StorageBreakdown& breakdown)
{
    return std::max<std::int64_t>(0, checkedSubtract(breakdown.total, breakdown.free));
}

} // namespace

Message volume(const StorageBreakdown& breakdown)
{
    const std::int64_t used = usedOf(breakdown);
    return {InsightTexts::kVolume,
            {{"free", Bytes{breakdown.free}},
             {"total", Bytes{breakdown.total}},
             {"used", Bytes{used}},
             {"share", Share{static_cast<double>(used) / static_cast<double>(breakdown.total)}}}};
}

std::optional<Answer> spaceNow(const Question& question, const AskContext& context)
{
    const StorageBreakdown& breakdown = context.breakdown;
    if (breakdown.total <= 0)
        return std::nullopt;
    // "My disk has 256 GB, how much is left" asks for no verdict.
    const Phrase* const size =
        question.senses.meets({Sense::howMuch, Sense::howBig}) ? nullptr : question.first(Sense::size);
    if (size != nullptr) {
        const bool isMore = breakdown.free >= size->amount;
        const bool isEnough = question.senses.has(Sense::below) ? !isMore : isMore;
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
    const Answer advice = safeToFree(context);
    answer->text = AskText::lines({answer->text, advice.text});
    answer->proposal = advice.proposal;
    return answer;
}

std::optional<Answer> whatIsBiggest(const Question& question, const AskContext& context)
{
    if (!question.hasNoKind())
        return std::nullopt;
    return question.senses.has(Sense::folder) ? biggestFolders(question, context)
                                              : AskEngine::fallback("most", context);
}

std::optional<Answer> biggestFolders(const Question& question, const AskContext& context)
{
    if (!question.hasNoKind())
        return std::nullopt;
    constexpr std::int64_t kNamed = 5;
    constexpr std::int64_t kMost = 20;
    const Phrase* const number = question.first(Sense::number);
    const auto exclusions = Exclusions::of(question, context);
    if (!exclusions)
        return std::nullopt;
    std::vector<CategoryFolder> folders = context.breakdown.folders;
    std::erase_if(folders, [&](const CategoryFolder& each) { return exclusions->leaveOut(each.path); });
    if (folders.empty())
        return Answer{InsightTexts::kScanForBreakdown, {}};
    std::ranges::stable_sort(folders, std::greater{}, &CategoryFolder::bytes);
    folders.resize(
        std::min(folders.size(),
                 static_cast<std::size_t>(number == nullptr ? kNamed : std::min(number->amount, kMost))));
    std::vector<Message> lines{exclusions->said(), InsightTexts::kTheBiggest};
    for (const CategoryFolder& folder : folders)
        lines.push_back(
            {InsightTexts::kDownload, {{"name", tilde(folder.path)}, {"size", Bytes{folder.bytes}}}});
    Answer answer{AskText::lines(std::move(lines)), {}};
    for (const CategoryFolder& folder : folders)
        answer.paths.push_back(folder.path);
    return answer;
}

std::optional<Answer> whatTakesIn(const Question& question, const AskContext& context)
{
    Question folders = question;
    folders.phrases.insert(folders.phrases.begin(), {Sense::folder, {}, nullptr, 0, {}});
    folders = withPhrases(folders, folders.phrases);
    std::optional<Answer> answer = listOfFolders(folders, context);
    return answer && !answer->paths.empty() ? answer : listOfFiles(question, context);
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

std::optional<Answer> fullByHome(const Question& question, const AskContext& context)
{
    const Subject* const place = question.subject();
    if (place == nullptr || place->id != SubjectID::home || question.count(Sense::subject) > 1)
        return std::nullopt;
    std::optional<Answer> size = sizeOfSubject(question, context);
    std::optional<Answer> why = whyFull(question, context);
    if (!size || !why)
        return std::nullopt;
    return together({*std::move(size), *std::move(why)});
}

} // namespace orlen::AskReader
