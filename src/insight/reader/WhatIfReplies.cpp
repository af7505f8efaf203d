#include "insight/reader/WhatIfReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsWhatIf.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/FindingLists.h"
#include "insight/reader/FindingParts.h"
#include "insight/reader/NamedParts.h"
#include "insight/reader/Names.h"
#include "insight/reader/Proposal.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/WouldGo.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// Only findings, and nothing else of them is said: those have an answer of their own.
bool isOfFindings(const std::vector<std::vector<Phrase>>& groups)
{
    return std::ranges::all_of(groups, [](const std::vector<Phrase>& group) {
        const Subject* const subject = group.front().subject;
        return group.size() == 1 && subject != nullptr && !subject->kinds.empty() &&
               subject->id != SubjectID::trash;
    });
}

Answer said(Things things, const AskContext& context)
{
    constexpr std::size_t kShown = 5;
    things.keepOnce();
    std::int64_t bytes = 0;
    for (const Stored& one : things.each)
        bytes = checkedAdd(bytes, one.bytes);
    Several names{std::move(things.names), Several::Joint::list};
    if (things.each.empty() && !things.notes.empty())
        return {AskText::lines(std::move(things.notes)), {}};
    if (things.each.empty())
        return {Message{InsightTexts::kNoFilesThere, {{"files", std::move(names)}}}, {}};
    std::ranges::stable_sort(things.each, std::greater{}, &Stored::bytes);
    Answer answer;
    const Place size{"size", Bytes{bytes}};
    const Place count{"count", std::ssize(things.each)};
    const Message sum = things.isOfTrash
                            ? Message{InsightTexts::kEmptyingTrash, {size, count}}
                            : Message{InsightTexts::kWouldFree, {{"what", std::move(names)}, size, count}};
    std::vector<Message> lines{AskText::sentences({sum, freeWithout(bytes, context)})};
    for (const Stored& one : std::span(things.each).first(std::min(things.each.size(), kShown))) {
        lines.push_back({InsightTexts::kDownload, {{"name", tilde(one.path)}, {"size", Bytes{one.bytes}}}});
        answer.paths.push_back(one.path);
    }
    answer.isCut = things.each.size() > kShown;
    if (answer.isCut)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(things.each.size() - kShown)}}});
    std::ranges::move(things.notes, std::back_inserter(lines));
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

} // namespace

Message freeWithout(std::int64_t bytes, const AskContext& context)
{
    if (context.breakdown.total <= 0)
        return {};
    return {
        InsightTexts::kFreeThen,
        {{"now", Bytes{context.breakdown.free}}, {"then", Bytes{checkedAdd(context.breakdown.free, bytes)}}}};
}

std::optional<Answer> freedByThem(const Question& question, const AskContext& context)
{
    const bool isPast = question.senses.has(Sense::period) &&
                        !question.senses.meets({Sense::before, Sense::above, Sense::unopened});
    std::vector<std::vector<Phrase>> groups = groupsIn(question);
    shareKind(question, context, groups);
    const bool isExcept = question.senses.has(Sense::except);
    const bool isOnlyExcept = isExcept && !question.senses.meets({Sense::remove, Sense::makeRoom});
    if (isPast || groups.empty() || (isExcept && !isOnlyExcept) || (!isExcept && isOfFindings(groups)))
        return std::nullopt;
    Things things;
    for (const std::vector<Phrase>& group : groups) {
        const Question one = withPhrases(question, group);
        if (addGroup(one, context, things))
            continue;
        // Half of the sum would be wrong.
        const std::string name = nameIn(one).name;
        if (groups.size() < 2 || name.empty() || context.home == nullptr)
            return std::nullopt;
        return Answer{Message{InsightTexts::kNowhere, {{"name", PathText::forDisplay(name)}}}, {}};
    }
    const auto isTrash = [](const std::vector<Phrase>& group) {
        return group.size() == 1 && group.front().subject == &subjectFor(SubjectID::trash);
    };
    things.isOfTrash = std::ranges::all_of(groups, isTrash);
    return said(std::move(things), context);
}

std::optional<Answer> isThatMuch(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOfThings{Sense::subject, Sense::unknown, Sense::quoted, Sense::ending};
    const std::vector<Phrase>& phrases = question.phrases;
    const auto isThing = [&](const Phrase& each) { return kOfThings.has(each.sense); };
    const auto first = std::ranges::find_if(phrases, isThing);
    const auto size = std::ranges::find(phrases, Sense::size, &Phrase::sense);
    // "Delete 5 GB of photos" asks for something else.
    if (question.count(Sense::size) > 1 || size < first || std::any_of(size, phrases.end(), isThing) ||
        phrases.front().sense == Sense::size ||
        (question.hasNoKind() && !question.senses.meets({Sense::unknown, Sense::quoted, Sense::ending})))
        return std::nullopt;
    std::vector<Phrase> named(phrases.begin(), size);
    Question gone = withPhrases(question, std::move(named));
    Things things;
    bool isOfTrash = true;
    for (const std::vector<Phrase>& group : groupsIn(gone)) {
        if (!addGroup(withPhrases(gone, group), context, things))
            return std::nullopt;
        isOfTrash = isOfTrash && group.size() == 1 && group.front().subject == &subjectFor(SubjectID::trash);
    }
    if (things.each.empty())
        return std::nullopt;
    things.isOfTrash = isOfTrash;
    things.keepOnce();
    std::int64_t bytes = 0;
    for (const Stored& one : things.each)
        bytes = checkedAdd(bytes, one.bytes);
    Answer answer = said(std::move(things), context);
    answer.text = AskText::sentences(
        {bytes >= size->amount ? InsightTexts::kYes : InsightTexts::kNo, std::move(answer.text)});
    return answer;
}

std::optional<Answer> sumOfThem(const Question& question, const AskContext& context)
{
    Things things;
    for (const std::vector<Phrase>& group : groupsIn(question)) {
        const Subject* const subject = group.front().subject;
        // A folder is counted as one thing, which it is not.
        const bool isFolder =
            subject != nullptr && subject->extensions.empty() && !folderOf(*subject).empty();
        if (isFolder || !addGroup(withPhrases(question, group), context, things))
            return std::nullopt;
    }
    if (things.names.size() < 2 || things.each.empty())
        return std::nullopt;
    things.keepOnce();
    std::int64_t bytes = 0;
    for (const Stored& one : things.each)
        bytes = checkedAdd(bytes, one.bytes);
    return Answer{Message{InsightTexts::kFilesThere,
                          {{"files", Several{std::move(things.names), Several::Joint::list}},
                           {"count", std::ssize(things.each)},
                           {"size", Bytes{bytes}}}},
                  {}};
}

std::optional<Answer> freedBySubject(const Question& question, const AskContext& context)
{
    const auto exclusions = Exclusions::of(question, context);
    if (!exclusions)
        return std::nullopt;
    Several names{{}, Several::Joint::list};
    std::vector<Hit> hits;
    std::set<const void*> counted; // "npm and yarn" are one finding
    for (const Phrase& phrase : question.phrases) {
        if (phrase.subject == nullptr || !counted.insert(phrase.subject).second)
            continue;
        if (phrase.subject->kinds.empty())
            return std::nullopt;
        names.messages.emplace_back(phrase.subject->name);
        for (const Finding* const finding : findingsOf(*phrase.subject, context)) {
            if (!counted.insert(finding).second)
                continue;
            for (const FileEntry& entry : finding->items) {
                if (exclusions->empty() || !exclusions->leaveOut(*finding, entry))
                    hits.push_back({finding, &entry});
            }
        }
    }
    if (hits.empty())
        return nothingFound(*question.subject(), context);
    hits = eachOnce(context, std::move(hits));
    Answer answer;
    std::int64_t safe = 0;
    for (const Hit& hit : hits) {
        if (hit.finding->cleanable && hit.finding->effectiveRating(*hit.entry) == Rating::safe)
            safe = checkedAdd(safe, hit.entry->size);
    }
    const Message sum{InsightTexts::kWithoutThem,
                      {{"files", std::move(names)},
                       {"count", std::ssize(hits)},
                       {"size", Bytes{bytesOf(hits)}},
                       {"safe", Bytes{safe}}}};
    std::vector<Message> lines{exclusions->said(), sum};
    for (const FindingPart& part : partsOf(hits)) {
        answer.findingIDs.emplace_back(part.finding->id());
        lines.push_back(
            {InsightTexts::kDownload, {{"name", within(part.finding->title)}, {"size", Bytes{part.bytes}}}});
    }
    if (answer.findingIDs.size() < 2)
        lines.pop_back();
    lines.push_back(freeWithout(bytesOf(hits), context));
    answer.text = AskText::lines(std::move(lines));
    Paths paths;
    for (const Hit& hit : hits)
        paths.insert(hit.entry->path);
    for (const Rating rating : {Rating::safe, Rating::review})
        appendPaths(answer.proposal, choosable(context, rating, *exclusions, &paths));
    return answer;
}

} // namespace orlen::AskReader
