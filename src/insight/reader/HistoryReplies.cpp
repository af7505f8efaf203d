#include "insight/reader/HistoryReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "insight/reader/PlaceReplies.h"
#include "insight/reader/ProgramNames.h"
#include "insight/reader/ProgramPlaces.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

std::int64_t freedBy(std::span<const CleanRecord> records)
{
    std::int64_t bytes = 0;
    for (const CleanRecord& record : records)
        bytes = checkedAdd(bytes, record.freed());
    return bytes;
}

/// From when to when the question asks for clean-ups.
Span spanOf(const Question& question, const Period& period, const AskContext& context)
{
    if (question.senses.meets({Sense::since, Sense::above}))
        return {period.from, context.now};
    if (question.senses.has(Sense::after))
        return {period.to, context.now};
    if (question.senses.has(Sense::before))
        return {context.history.back().date, period.from};
    return {period.from, period.to};
}

Answer cleanUpsIn(const Span& span, const std::vector<CleanRecord>& history)
{
    std::vector<CleanRecord> records;
    std::ranges::copy_if(history, std::back_inserter(records), [&](const CleanRecord& record) {
        return record.date >= span.from && record.date < span.to;
    });
    // A span ends just before a day begins.
    const Place first{"first", dayOf(span.from)};
    const Place last{"last", dayOf(span.to - std::chrono::hours(1))};
    if (records.empty())
        return {Message{InsightTexts::kNoCleanUpBetween, {first, last}}, {}};
    return {AskText::sentences(
                {Message{InsightTexts::kCleanUpsBetween,
                         {first, last, {"count", std::ssize(records)}, {"size", Bytes{freedBy(records)}}}},
                 InsightTexts::kHistoryListsThem}),
            {}};
}

/// The largest things that it moved.
std::vector<Message> linesFor(std::vector<TrashedItem> items)
{
    constexpr std::size_t kShown = 5;
    std::ranges::stable_sort(items, std::greater{}, &TrashedItem::size);
    std::vector<Message> lines;
    for (const TrashedItem& item : std::span(items).first(std::min(items.size(), kShown)))
        lines.push_back(
            {InsightTexts::kDownload, {{"name", tilde(item.original)}, {"size", Bytes{item.size}}}});
    if (items.size() > kShown)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(items.size() - kShown)}}});
    return lines;
}

} // namespace

Message lastCleanUpOf(const std::vector<CleanRecord>& history)
{
    if (history.empty())
        return InsightTexts::kNoCleanUp;
    const CleanRecord& record = history.front();
    Message moved{InsightTexts::kLastCleanUp,
                  {{"date", Moment{record.date}},
                   {"count", std::ssize(record.items)},
                   {"size", Bytes{record.freed()}}}};
    const std::int64_t restored = std::ranges::count(record.items, true, &TrashedItem::restored);
    if (restored == 0)
        return moved;
    return AskText::sentences({moved, Message{InsightTexts::kPutBack, {{"count", restored}}}});
}

std::optional<Answer> lastCleanUp(const Question& question, const AskContext& context)
{
    // What it moved of one kind is another question.
    const auto isKind = [](const Phrase& phrase) {
        return phrase.subject != nullptr && !phrase.subject->isAnyFile;
    };
    if (std::ranges::any_of(question.phrases, isKind))
        return std::nullopt;
    if (context.history.empty())
        return Answer{InsightTexts::kNoCleanUp, {}};
    std::vector<Message> lines{lastCleanUpOf(context.history)};
    if (question.senses.meets({Sense::what, Sense::howMany}))
        std::ranges::move(linesFor(context.history.front().items), std::back_inserter(lines));
    lines.emplace_back(InsightTexts::kHowToRestore);
    return Answer{AskText::lines(std::move(lines)), {}};
}

std::optional<Answer> lastCleanUpFrom(const Question& question, const AskContext& context)
{
    const auto isKind = [](const Phrase& phrase) {
        return phrase.subject != nullptr && !phrase.subject->isAnyFile;
    };
    const AskedName asked = nameIn(question);
    if (context.history.empty() || asked.name.empty() || !asked.place.empty() ||
        std::ranges::any_of(question.phrases, isKind))
        return std::nullopt;
    const ProgramName program = programNameIn(asked.name);
    const std::string name = lowered(asked.name);
    std::vector<TrashedItem> items = context.history.front().items;
    std::erase_if(items, [&](const TrashedItem& item) {
        return !isPlaceOf(item.original, program) &&
               !holdsWord(lowered(PathText::lastComponent(item.original)), name);
    });
    if (items.empty())
        return std::nullopt;
    std::vector<Message> lines{lastCleanUpOf(context.history)};
    std::ranges::move(linesFor(std::move(items)), std::back_inserter(lines));
    lines.emplace_back(InsightTexts::kHowToRestore);
    return Answer{AskText::lines(std::move(lines)), {}};
}

std::optional<Answer> allCleanUps(const Question& question, const AskContext& context)
{
    if (context.history.empty())
        return Answer{InsightTexts::kNoCleanUp, {}};
    if (const Phrase* const phrase = question.first(Sense::period))
        return cleanUpsIn(spanOf(question, *phrase->period, context), context.history);
    const std::int64_t bytes = freedBy(context.history);
    const Message all{InsightTexts::kCleanUps,
                      {{"count", std::ssize(context.history)},
                       {"date", Moment{context.history.back().date}},
                       {"size", Bytes{bytes}}}};
    return Answer{AskText::sentences({all, lastCleanUpOf(context.history), InsightTexts::kHistoryListsThem}),
                  {}};
}

std::optional<Answer> howLongItIsKept(const Question& question, const AskContext& context)
{
    const auto isTrash = [](const Phrase& each) {
        return each.subject != nullptr && each.subject->id == SubjectID::trash;
    };
    const auto isOther = [&](const Phrase& each) {
        return each.subject != nullptr && !each.subject->isAnyFile && !isTrash(each);
    };
    const bool isOfTrash = question.isBackward || std::ranges::any_of(question.phrases, isTrash) ||
                           question.senses.meets({Sense::undo, Sense::remove, Sense::cleanUp});
    return isOfTrash && std::ranges::none_of(question.phrases, isOther) ? howToUndo(question, context)
                                                                        : std::nullopt;
}

std::optional<Answer> howToUndo(const Question& question, const AskContext& context)
{
    // "The pip cache": whether it was moved at all.
    const Phrase* const kind = question.first(Sense::subject);
    constexpr SubjectID kPrograms[] = {SubjectID::npm, SubjectID::pip, SubjectID::gradle,
                                       SubjectID::homebrew};
    if (kind != nullptr && std::ranges::find(kPrograms, kind->subject->id) != std::end(kPrograms)) {
        if (std::optional<Answer> back = gettingBack(question, context, kind->text))
            return back;
    }
    return Answer{AskText::sentences({lastCleanUpOf(context.history), InsightTexts::kHowToRestore,
                                      InsightTexts::kUntilTrashIsEmptied}),
                  {}};
}

} // namespace orlen::AskReader
