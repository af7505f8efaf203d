#include "insight/reader/WouldGo.h"

#include "insight/InsightTexts.h"
#include "insight/InsightTextsWhatIf.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FindingLists.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/HomeLists.h"
#include "insight/reader/ListRequest.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NamedKinds.h"
#include "insight/reader/NamedParts.h"
#include "insight/reader/PathHits.h"
#include "insight/reader/Proposal.h"
#include "insight/reader/SubjectReplies.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>

namespace orlen::AskReader {

namespace {

bool isName(const Phrase& phrase)
{
    return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
}

constexpr SenseSet kRatings{Sense::safe, Sense::review, Sense::keep};

/// What no clean-up takes is no gain: that it is protected is said instead, if nothing in it may go.
void addMeasured(Measured measured, const AskContext& context, Things& things)
{
    const Protection protection = protectionOf(context, measured.path);
    if (protection != Protection::none) {
        const std::vector<Hit> inside = hitsBelow(measured.path, context);
        for (const Hit& hit : inside)
            things.add(hit);
        if (!inside.empty()) {
            things.addName(Message::verbatim(tilde(measured.path)));
            return;
        }
        things.notes.push_back(protectedPlace(measured.path, protection).text);
        return;
    }
    things.addName(Message::verbatim(tilde(measured.path)));
    things.each.push_back({std::move(measured.path), measured.bytes});
}

/// The caches or log files of a program, and never the rest of it. What is there no more is said.
bool addPart(const ProgramName& program, const AskContext& context, Things& things)
{
    Found found = placesOf(context, program);
    for (const Hit& hit : found.hits) {
        things.add(hit);
        things.addName(Message::verbatim(tilde(hit.entry->path)));
    }
    for (Measured& measured : found.measured) {
        if (measured.bytes > 0)
            addMeasured(std::move(measured), context, things);
    }
    for (const TrashedItem* const item : found.trashed)
        things.notes.push_back(
            {InsightTexts::kTrashedEarlier, {{"path", tilde(item->original)}, {"size", Bytes{item->size}}}});
    if (found.fit == Fit::none)
        things.notes.push_back(noSuchPart(program).text);
    return context.home != nullptr;
}

bool addNamed(const Question& group, const AskContext& context, Things& things)
{
    const AskedName asked = nameIn(group);
    if (asked.name.empty() || !asked.place.empty())
        return false;
    if (const std::optional<ProgramName> program = partOf(group))
        return addPart(*program, context, things);
    std::string name = asked.name;
    if (const Phrase* const ending = group.first(Sense::ending);
        ending != nullptr && !isFileName(group, name))
        name += " " + ending->text;
    Found found = ofKindNamed(group, context, name);
    if (found.fit == Fit::none) {
        found = findNamed(context, name);
        keepOfKind(found, group, context, name);
    }
    // What the Trash holds of a program is not the program.
    const bool isOfTrash =
        !found.hits.empty() && found.measured.empty() && std::ranges::all_of(found.hits, [](const Hit& hit) {
            return hit.finding->kind == FindingKind::trash;
        });
    if (Found places = isOfTrash && !isFileName(group, name) ? placesOf(context, {name}) : Found();
        !places.hits.empty() || !places.measured.empty())
        found = std::move(places);
    // "Linux mint" of "linuxmint-22.iso"
    if (found.fit == Fit::none) {
        found.hits = holdingAll(context, wordsOfName(lowered(name)));
        keepOfKind(found, group, context, name);
    }
    if (found.fit == Fit::none && !found.hits.empty())
        found.fit = Fit::part;
    const bool isOne = found.hits.size() + found.measured.size() == 1;
    if (found.fit < Fit::words && !(found.fit == Fit::part && isOne))
        return false;
    for (const Hit& hit : found.hits)
        things.add(hit);
    const bool isThere = !found.hits.empty() || !found.measured.empty();
    const bool isProtected =
        found.hits.empty() && std::ranges::all_of(found.measured, [&](const Measured& each) {
            return protectionOf(context, each.path) != Protection::none;
        });
    if (isThere && !isProtected)
        things.addName(Message::verbatim(PathText::forDisplay(name)));
    for (Measured& measured : found.measured) {
        if (isProtected)
            addMeasured(std::move(measured), context, things);
        else if (found.hits.empty() && protectionOf(context, measured.path) == Protection::none)
            things.each.push_back({std::move(measured.path), measured.bytes});
    }
    return isThere;
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

/// "Old installers" that would go: not changed for as long as the scan takes for old.
Question withAgeForOld(const Question& group, const AskContext& context)
{
    using enum SubjectID;
    constexpr SubjectID kOfDownloads[] = {installers, diskImages, archives, downloads};
    const std::size_t at = group.position(Sense::oldest);
    if (at == group.phrases.size() || group.senses.meets({Sense::period, Sense::unopened}))
        return group;
    const Subject* const subject = group.subject();
    const bool isOfDownloads =
        group.senses.has(Sense::ending) ||
        (subject != nullptr && std::ranges::find(kOfDownloads, subject->id) != std::end(kOfDownloads));
    constexpr auto kMonth = std::chrono::days(30);
    constexpr auto kYear = std::chrono::days(365);
    const TimePoint until = context.now - (isOfDownloads ? kMonth : kYear);
    std::vector<Phrase> phrases = group.phrases;
    phrases[at].sense = Sense::before;
    Phrase age{Sense::period, {}, nullptr, 0, Period{}};
    age.period->from = until;
    age.period->to = context.now;
    phrases.insert(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(at) + 1), std::move(age));
    return withPhrases(group, std::move(phrases));
}

/// Files of a kind, with all that the question says of them.
bool addListed(const Question& group, const AskContext& context, Things& things)
{
    auto request = listRequestIn(withAgeForOld(group, context), context);
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

} // namespace

void Things::addName(Message name)
{
    if (std::ranges::find(names, name) == names.end())
        names.push_back(std::move(name));
}

void Things::add(const Hit& hit)
{
    each.push_back({hit.entry->path, hit.entry->size});
}

void Things::keepOnce()
{
    std::ranges::sort(each, {}, [](const Stored& one) { return std::pair(one.path, -one.bytes); });
    std::vector<Stored> kept;
    for (Stored& one : each) {
        if (kept.empty() || !PathText::isAtOrBelow(one.path, kept.back().path))
            kept.push_back(std::move(one));
    }
    each = std::move(kept);
}

std::vector<std::vector<Phrase>> groupsIn(const Question& question)
{
    constexpr SenseSet kOfThings{Sense::subject, Sense::unknown,  Sense::quoted, Sense::ending, Sense::above,
                                 Sense::below,   Sense::size,     Sense::before, Sense::period, Sense::inside,
                                 Sense::folder,  Sense::unopened, Sense::oldest};
    const SenseSet ofThings = kOfThings.with(kRatings);
    std::vector<std::vector<Phrase>> groups;
    bool isNew = true;
    const auto add = [&](const std::vector<Phrase>& phrases) {
        for (const Phrase& phrase : phrases) {
            const bool isNameable = isName(phrase) || phrase.subject != nullptr ||
                                    phrase.sense == Sense::ending || kRatings.has(phrase.sense);
            // "The ISOs and the old installers"
            isNew = isNew || (phrase.isJoined && (isNameable || phrase.sense == Sense::oldest));
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
    sharePart(question, groups);
    return groups;
}

bool addGroup(const Question& group, const AskContext& context, Things& things)
{
    const auto isPlace = [&](const Phrase& each) {
        return &each != group.phrases.data() && std::prev(&each)->sense == Sense::inside;
    };
    const bool isNamed = std::ranges::any_of(
        group.phrases, [&](const Phrase& each) { return isName(each) && !isPlace(each); });
    const bool isKind = group.senses.meets({Sense::subject, Sense::ending});
    if (isNamed || (!isKind && std::ranges::any_of(group.phrases, isName)))
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
    // What is recognised is counted as lists do.
    const bool isOfHome = isRecognised(*subject) && context.home != nullptr;
    if (isOnly && !isOfHome && subject->extensions.empty() && !subject->kinds.empty()) {
        for (const Finding* const finding : findingsOf(*subject, context)) {
            for (const FileEntry& entry : finding->items)
                things.add({finding, &entry});
        }
        things.addName(subject->name);
        return true;
    }
    return !subject->isProgram && addListed(group, context, things);
}

} // namespace orlen::AskReader
