#include "insight/reader/PlaceReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/ProgramReplies.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kMostLines = 4;

std::int64_t bytesOf(const Found& found)
{
    std::int64_t bytes = 0;
    for (const Hit& hit : found.hits)
        bytes = checkedAdd(bytes, hit.entry->size);
    for (const Measured& each : found.measured)
        bytes = checkedAdd(bytes, each.bytes);
    return bytes;
}

/// What there is now of the program's folders, at least one.
Answer present(const Question& question, const AskContext& context, const ProgramName& program,
               const Found& found)
{
    const std::string name = PathText::forDisplay(program.name);
    const auto count = std::ssize(found.hits) + std::ssize(found.measured);
    if (count > 1) {
        const Text& text =
            program.part == PlacePart::caches ? InsightTexts::kCachesOf : InsightTexts::kPlacesOf;
        Message heading{text, {{"name", name}, {"count", count}, {"size", Bytes{bytesOf(found)}}}};
        const bool asksVerdict =
            question.senses.meets({Sense::remove, Sense::safe, Sense::keep, Sense::cleanUp});
        return asksVerdict ? judgedBelow(std::move(heading), question, context, found)
                           : listedBelow(std::move(heading), context, found);
    }
    Answer answer =
        found.hits.empty() ? measuredOnly(question, context, found, name) : listedHits(context, found, name);
    if (program.part == PlacePart::caches && found.hits.empty() && answer.findingIDs.empty())
        answer.text = AskText::sentences({std::move(answer.text), InsightTexts::kIsCache});
    return answer;
}

/// The clean-up that moved it.
const CleanRecord* recordOf(const AskContext& context, const TrashedItem& item)
{
    const auto record = std::ranges::find_if(context.history, [&](const CleanRecord& each) {
        return std::ranges::any_of(each.items, [&](const TrashedItem& one) { return &one == &item; });
    });
    return record == context.history.end() ? nullptr : &*record;
}

Message backFromHistory(const AskContext& context, const TrashedItem& item)
{
    constexpr std::size_t kShownID = 8;
    const CleanRecord* const record = recordOf(context, item);
    if (record == nullptr)
        return {InsightTexts::kTrashedEarlier, {{"path", tilde(item.original)}, {"size", Bytes{item.size}}}};
    return {InsightTexts::kBackFromHistory,
            {{"path", tilde(item.original)},
             {"size", Bytes{item.size}},
             {"date", Moment{record->date}},
             {"record", record->id.text().substr(0, kShownID)}}};
}

Message backFromTrash(const Hit& hit)
{
    std::vector<Place> places{{"name", AskText::fileName(*hit.entry)}, {"size", Bytes{hit.entry->size}}};
    Message note = noteOf(*hit.entry);
    if (note.empty())
        return {InsightTexts::kBackFromTrashPlain, std::move(places)};
    places.push_back({"note", within(std::move(note))});
    return {InsightTexts::kBackFromTrash, std::move(places)};
}

Message stillThere(std::string_view path, std::int64_t bytes)
{
    return {InsightTexts::kStillThere, {{"path", tilde(path)}, {"size", Bytes{bytes}}}};
}

/// Of what was neither deleted nor cleaned up. "If I delete it, can I get it back" is no question about that.
std::optional<Answer> notGone(const Question& question, const AskContext& context, std::string_view name)
{
    const Found there = findNamed(context, name);
    const bool isThere = there.fit >= Fit::stem && (!there.hits.empty() || !there.measured.empty());
    if (isThere && question.position(Sense::remove) < question.position(Sense::undo))
        return std::nullopt;
    std::vector<Message> said{{InsightTexts::kNotInTrash, {{"name", PathText::forDisplay(name)}}}};
    if (isThere && !there.hits.empty())
        said.push_back(stillThere(there.hits.front().entry->path, there.hits.front().entry->size));
    else if (isThere)
        said.push_back(stillThere(there.measured.front().path, there.measured.front().bytes));
    return Answer{AskText::sentences(std::move(said)), {}};
}

} // namespace

ProgramName programIn(const Question& question, std::string_view name)
{
    ProgramName program = programNameIn(name);
    for (const Phrase& phrase : question.phrases) {
        if (const auto part = partCalled(phrase.text); part && program.part == PlacePart::all)
            program.part = *part;
        if (phrase.subject != nullptr && phrase.subject->id == SubjectID::caches)
            program.part = PlacePart::caches;
        else if (phrase.subject != nullptr && phrase.subject->id == SubjectID::logs)
            program.part = PlacePart::logs;
        // "The Steam shader cache" is not that of another program.
        const bool isSteam = phrase.subject != nullptr && phrase.subject->id == SubjectID::games &&
                             plainLetters(phrase.text) == "steam";
        if (isSteam && !name.empty())
            program.name += " steam";
    }
    return program;
}

std::optional<Answer> aboutPlaces(const Question& question, const AskContext& context,
                                  const ProgramName& program)
{
    Found found = placesOf(context, program);
    const bool isAll = program.part == PlacePart::all;
    if (!isAll) // A clean-up leaves the empty folder of a cache.
        std::erase_if(found.measured,
                      [&](const Measured& each) { return each.bytes == 0 && !found.trashed.empty(); });
    const bool isThere = !found.hits.empty() || !found.measured.empty();
    const bool isOfTrash = !isAll || asksSize(question);
    if (!isThere && (!isOfTrash || found.trashed.empty()))
        return std::nullopt;
    Answer answer;
    std::vector<Message> lines;
    std::optional<Answer> app = isAll ? aboutApp(context, program.name, toldOf(question)) : std::nullopt;
    // What the application has stored is part of its size.
    const bool isSaid = app && found.hits.size() + found.measured.size() <= 1;
    if (isSaid && (!isOfTrash || found.trashed.empty()))
        return app;
    if (app)
        lines.push_back(std::move(app->text));
    if (isThere && !isSaid) {
        answer = present(question, context, program, found);
        lines.push_back(std::move(answer.text));
    }
    if (isOfTrash) {
        for (const TrashedItem* const item :
             std::span(found.trashed).first(std::min(found.trashed.size(), kMostLines)))
            lines.push_back({InsightTexts::kTrashedEarlier,
                             {{"path", tilde(item->original)}, {"size", Bytes{item->size}}}});
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

bool asksSize(const Question& question)
{
    return question.senses.meets({Sense::howBig, Sense::howMuch, Sense::takes, Sense::space});
}

Answer noSuchPart(const ProgramName& program)
{
    const Text& text = program.part == PlacePart::logs ? InsightTexts::kNoLogsOf : InsightTexts::kNoCacheOf;
    return {Message{text, {{"name", PathText::forDisplay(program.name)}}}, {}};
}

bool asksBack(const Question& question)
{
    constexpr SenseSet kOfSpace{Sense::howMuch, Sense::howBig, Sense::space, Sense::size, Sense::free};
    return question.senses.has(Sense::undo) && !question.senses.meets(kOfSpace);
}

std::optional<Answer> gettingBack(const Question& question, const AskContext& context, std::string_view name)
{
    const ProgramName program = programIn(question, name);
    Found found = findTrashed(context, name);
    if (program.part != PlacePart::all || found.trashed.empty()) {
        if (Found places = placesOf(context, program); !places.trashed.empty())
            found.trashed = std::move(places.trashed);
    }
    if (found.trashed.empty() && found.hits.empty())
        return notGone(question, context, name);
    std::vector<Message> lines;
    Answer answer;
    for (const TrashedItem* const item :
         std::span(found.trashed).first(std::min(found.trashed.size(), kMostLines)))
        lines.push_back(backFromHistory(context, *item));
    if (found.trashed.empty()) {
        for (const Hit& hit : std::span(found.hits).first(std::min(found.hits.size(), kMostLines))) {
            lines.push_back(backFromTrash(hit));
            answer.paths.push_back(hit.entry->path);
            answer.findingIDs = {std::string(hit.finding->id())};
        }
    }
    lines.emplace_back(InsightTexts::kUntilTrashIsEmptied);
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

} // namespace orlen::AskReader
