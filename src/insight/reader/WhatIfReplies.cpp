#include "insight/reader/WhatIfReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsWhatIf.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/FindingLists.h"
#include "insight/reader/FindingParts.h"
#include "insight/reader/HomeLists.h"
#include "insight/reader/ListRequest.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NamedKinds.h"
#include "insight/reader/Names.h"
#include "insight/reader/Proposal.h"
#include "insight/reader/StoredThings.h"
#include "insight/reader/SubjectReplies.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// What would be removed.
struct Things {
    std::vector<Stored> each;
    std::vector<Message> names;
    bool isOfTrash = false; ///< and of nothing else

    void addName(Message name)
    {
        if (std::ranges::find(names, name) == names.end())
            names.push_back(std::move(name));
    }

    void add(const Hit& hit) { each.push_back({hit.entry->path, hit.entry->size}); }

    /// Drops what is there twice, and what lies in a folder that is there.
    void keepOnce()
    {
        std::ranges::sort(each, {}, [](const Stored& one) { return std::pair(one.path, -one.bytes); });
        std::vector<Stored> kept;
        for (Stored& one : each) {
            if (kept.empty() || !PathText::isAtOrBelow(one.path, kept.back().path))
                kept.push_back(std::move(one));
        }
        each = std::move(kept);
    }
};

bool isName(const Phrase& phrase)
{
    return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
}

constexpr SenseSet kRatings{Sense::safe, Sense::review, Sense::keep};

/// The phrases that say what would be removed, each list of them for itself.
std::vector<std::vector<Phrase>> groupsIn(const Question& question)
{
    constexpr SenseSet kOfThings{Sense::subject, Sense::unknown, Sense::quoted, Sense::ending,
                                 Sense::above,   Sense::below,   Sense::size,   Sense::before,
                                 Sense::period,  Sense::inside,  Sense::folder, Sense::unopened};
    const SenseSet ofThings = kOfThings.with(kRatings);
    std::vector<std::vector<Phrase>> groups;
    bool isNew = true;
    const auto add = [&](const std::vector<Phrase>& phrases) {
        for (const Phrase& phrase : phrases) {
            const bool isNameable = isName(phrase) || phrase.subject != nullptr ||
                                    phrase.sense == Sense::ending || kRatings.has(phrase.sense);
            isNew = isNew || (phrase.isJoined && isNameable);
            if (!ofThings.has(phrase.sense))
                continue;
            if (isNew)
                groups.emplace_back();
            isNew = false;
            groups.back().push_back(phrase);
        }
    };
    add(question.phrases);
    // "Without the downloads" is what would be gone, if nothing else is.
    if (groups.empty()) {
        for (const Phrase& phrase : question.phrases)
            add(phrase.excluded);
    }
    return groups;
}

bool addNamed(const Question& group, const AskContext& context, Things& things)
{
    const AskedName asked = nameIn(group);
    if (asked.name.empty() || !asked.place.empty())
        return false;
    std::string name = asked.name;
    if (const Phrase* const ending = group.first(Sense::ending);
        ending != nullptr && !isFileName(group, name))
        name += " " + ending->text;
    Found found = ofKindNamed(group, context, name);
    if (found.fit == Fit::none)
        found = findNamed(context, name);
    // "Linux mint" of "linuxmint-22.iso"
    if (found.fit == Fit::none)
        found.hits = holdingAll(context, wordsOfName(lowered(name)));
    if (found.fit == Fit::none && !found.hits.empty())
        found.fit = Fit::part;
    const bool isOne = found.hits.size() + found.measured.size() == 1;
    if (found.fit < Fit::words && !(found.fit == Fit::part && isOne))
        return false;
    for (const Hit& hit : found.hits)
        things.add(hit);
    for (Measured& measured : found.measured) {
        if (found.hits.empty())
            things.each.push_back({std::move(measured.path), measured.bytes});
    }
    things.addName(Message::verbatim(PathText::forDisplay(name)));
    return !found.hits.empty() || !found.measured.empty();
}

bool addRated(const Question& group, const AskContext& context, Things& things)
{
    const auto* const phrase =
        std::ranges::find_if(group.phrases.data(), group.phrases.data() + group.phrases.size(),
                             [](const Phrase& each) { return kRatings.has(each.sense); });
    const Rating rating = phrase->sense == Sense::safe     ? Rating::safe
                          : phrase->sense == Sense::review ? Rating::review
                                                           : Rating::keep;
    if (!group.hasNoKind())
        return false;
    for (const Hit& hit : choosable(context, rating, {}))
        things.add(hit);
    things.addName({InsightTexts::kEverythingRated, {{"rating", within(label(rating))}}});
    return true;
}

/// Files of a kind, with all that the question says of them.
bool addListed(const Question& group, const AskContext& context, Things& things)
{
    auto request = listRequestIn(group, context);
    if (!request || request->areFolders || request->isOfScan || context.home == nullptr)
        return false;
    const bool isEverything = (request->subject == nullptr || request->subject->isAnyFile) &&
                              request->ending.empty() && request->folder.empty() &&
                              !group.senses.meets({Sense::size, Sense::period});
    if (isEverything)
        return false;
    request->count = std::numeric_limits<std::int64_t>::max();
    const auto list = filesFor(*request, *context.home);
    if (!list)
        return false;
    things.each.reserve(things.each.size() + list->first.size());
    for (const HomeFiles::Number file : list->first)
        things.each.push_back({context.home->filePath(file), context.home->file(file).bytes});
    things.addName(request->files);
    return true;
}

bool addGroup(const Question& group, const AskContext& context, Things& things)
{
    if (std::ranges::any_of(group.phrases, isName))
        return addNamed(group, context, things);
    if (group.senses.meets(kRatings))
        return addRated(group, context, things);
    const Subject* const subject = group.subject();
    if (subject == nullptr)
        return false;
    if (auto stored = storedOf(*subject, context)) {
        std::ranges::move(*stored, std::back_inserter(things.each));
        things.addName(subject->name);
        return true;
    }
    const bool isOnly = group.phrases.size() == 1;
    const std::string folder = folderOf(*subject);
    if (const auto bytes = isOnly && !folder.empty() && subject->extensions.empty()
                               ? folderSize(context, folder)
                               : std::nullopt) {
        things.each.push_back({folder, *bytes});
        things.addName(Message::verbatim(tilde(folder)));
        return true;
    }
    if (isOnly && subject->extensions.empty() && !subject->kinds.empty()) {
        for (const Finding* const finding : findingsOf(*subject, context)) {
            for (const FileEntry& entry : finding->items)
                things.add({finding, &entry});
        }
        things.addName(subject->name);
        return true;
    }
    return !subject->isProgram && addListed(group, context, things);
}

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
    if (things.each.size() > kShown)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(things.each.size() - kShown)}}});
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
    const std::vector<std::vector<Phrase>> groups = groupsIn(question);
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
    hits = eachOnce(std::move(hits));
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
    for (const Rating rating : {Rating::safe, Rating::review}) {
        std::vector<Hit> chosen = choosable(context, rating, *exclusions);
        std::erase_if(chosen, [&](const Hit& hit) {
            return std::ranges::find(answer.findingIDs, hit.finding->id()) == answer.findingIDs.end();
        });
        appendPaths(answer.proposal, chosen);
    }
    return answer;
}

} // namespace orlen::AskReader
