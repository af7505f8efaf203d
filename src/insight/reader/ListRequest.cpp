#include "insight/reader/ListRequest.h"

#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

constexpr std::int64_t kMostShown = 20;

Order orderIn(const Question& question)
{
    if (question.senses.has(Sense::oldest))
        return Order::oldest;
    // "What is new that takes space"
    if (question.senses.has(Sense::newest))
        return question.senses.has(Sense::takes) ? Order::biggest : Order::newest;
    if (question.senses.has(Sense::smallest))
        return Order::smallest;
    // "The last download"
    const bool isLast =
        question.senses.has(Sense::last) && !question.senses.meets({Sense::biggest, Sense::most});
    return isLast ? Order::newest : Order::biggest;
}

/// A kind to list: files by extension or finding, or every file.
bool isKind(const Subject& subject)
{
    return subject.isAnyFile || !subject.extensions.empty() ||
           (!subject.kinds.empty() && subject.folder.empty());
}

/// Says one more condition of the files.
void narrow(ListRequest& request, const Text& condition, std::vector<Place> places)
{
    places.push_back({"files", within(std::move(request.files))});
    request.files = {condition, std::move(places)};
}

/// The word that compares stands before a size or behind it: "over 1 GB", "1 GB or more".
Sense comparisonAt(const Question& question, std::size_t position)
{
    constexpr SenseSet kComparisons{Sense::above, Sense::below};
    if (position > 0 && kComparisons.has(question.phrases[position - 1].sense))
        return question.phrases[position - 1].sense;
    const bool isLast = position + 1 >= question.phrases.size();
    return isLast ? Sense::unknown : question.phrases[position + 1].sense;
}

/// False if a size stands alone.
bool takeSizes(const Question& question, ListRequest& request)
{
    if (question.count(Sense::size) == 2 && question.senses.has(Sense::above) &&
        !question.senses.has(Sense::below)) {
        const auto isSize = [](const Phrase& phrase) { return phrase.sense == Sense::size; };
        const auto first = std::ranges::find_if(question.phrases, isSize);
        const auto second = std::find_if(std::next(first), question.phrases.end(), isSize);
        const auto [least, most] = std::minmax(first->amount, second->amount);
        request.leastBytes = least;
        request.mostBytes = most;
        narrow(request, InsightTexts::kFilesOver, {{"size", Bytes{least}}});
        narrow(request, InsightTexts::kFilesUnder, {{"size", Bytes{most}}});
        return true;
    }
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        const Phrase& phrase = question.phrases[i];
        if (phrase.sense != Sense::size)
            continue;
        const Sense comparison = comparisonAt(question, i);
        if (comparison == Sense::above) {
            request.leastBytes = phrase.amount + 1;
            narrow(request, InsightTexts::kFilesOver, {{"size", Bytes{phrase.amount}}});
        } else if (comparison == Sense::below) {
            request.mostBytes = phrase.amount - 1;
            narrow(request, InsightTexts::kFilesUnder, {{"size", Bytes{phrase.amount}}});
        } else {
            return false;
        }
    }
    return true;
}

/// "More than two years old"
bool isOlderThan(const Question& question)
{
    return question.senses.has(Sense::above) && !question.senses.has(Sense::size);
}

bool isYoungerThan(const Question& question)
{
    return question.senses.has(Sense::below) && !question.senses.has(Sense::size);
}

/// The one date and the word it belongs to. False if that is unclear.
bool takeDate(const Question& question, TimePoint now, ListRequest& request)
{
    const Phrase* const phrase = question.first(Sense::period);
    if (phrase == nullptr)
        return !question.senses.meets({Sense::before, Sense::after, Sense::since, Sense::unopened});
    const Period& period = *phrase->period;
    // "Over the summer" is no age.
    if (period.from > now || (period.isAhead && isOlderThan(question)))
        return false;
    // "More than last month" compares something else.
    if ((isOlderThan(question) || isYoungerThan(question)) && !period.next)
        return false;
    // "Not touched since 2024": in that year for the last time, or before it.
    const bool isWholeYear = period.to - period.from >= std::chrono::days(365) && period.to < now;
    const TimePoint bound = question.senses.has(Sense::since) && isWholeYear ? period.to : period.from;
    if (question.senses.has(Sense::unopened)) {
        request.openedTo = bound;
        narrow(request, InsightTexts::kFilesOpenedBefore, {{"date", dayOf(bound)}});
    } else if (question.senses.has(Sense::before) || isOlderThan(question)) {
        request.changedTo = bound;
        narrow(request, InsightTexts::kFilesChangedBefore, {{"date", dayOf(bound)}});
    } else if (question.senses.has(Sense::after)) {
        request.changedFrom = period.to;
        narrow(request, InsightTexts::kFilesChangedSince, {{"date", dayOf(period.to)}});
    } else if (question.senses.has(Sense::since) || isYoungerThan(question)) {
        request.changedFrom = period.from;
        narrow(request, InsightTexts::kFilesChangedSince, {{"date", dayOf(period.from)}});
    } else {
        request.changedFrom = period.from;
        request.changedTo = period.to;
        narrow(request, InsightTexts::kFilesChangedBetween,
               {{"first", dayOf(period.from)}, {"last", dayOf(period.to)}});
    }
    return true;
}

/// "Duplicate PDFs": one subject says of which finding, the other of which kind the files are.
bool takeBoth(const Subject& subject, ListRequest& request)
{
    const Subject* const other = request.subject;
    if (other == nullptr || request.listedAs != nullptr ||
        other->extensions.empty() == subject.extensions.empty())
        return false;
    request.listedAs = subject.extensions.empty() ? &subject : other;
    request.subject = subject.extensions.empty() ? other : &subject;
    return true;
}

/// Sorts the subjects into what is listed and where. False if one is neither, or there are two of a sort.
bool takeSubjects(const Question& question, ListRequest& request)
{
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        const Subject* const subject = question.phrases[i].subject;
        if (subject == nullptr)
            continue;
        const bool isAfterInside = i > 0 && question.phrases[i - 1].sense == Sense::inside;
        const std::string folder = folderOf(*subject);
        const bool isPlace = !folder.empty() && (isAfterInside || !isKind(*subject));
        if (isPlace && request.folder.empty())
            request.folder = folder;
        else if (!isPlace && isKind(*subject) && (request.subject == nullptr || request.subject->isAnyFile))
            request.subject = subject;
        else if (!subject->isAnyFile && !(subject->folder == "{H}" && !request.folder.empty()) &&
                 (isPlace || !isKind(*subject) || !takeBoth(*subject, request)))
            return false;
    }
    return true;
}

bool isName(const Phrase& phrase)
{
    return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
}

/// "In the folder Projects": the word for folders is no part of what is listed.
bool isAfterInside(const Question& question, std::size_t at)
{
    while (at > 0 && question.phrases[at - 1].sense == Sense::folder)
        --at;
    return at > 0 && question.phrases[at - 1].sense == Sense::inside;
}

/// A folder given by its path or its name. False if unknown words are none.
bool takeFolder(const Question& question, const AskContext& context, ListRequest& request)
{
    const std::vector<Phrase>& phrases = question.phrases;
    const auto first = std::ranges::find_if(phrases, isName);
    if (first == phrases.end())
        return true;
    const auto last = std::find_if_not(first, phrases.end(), isName);
    // "How many songs of Bach": in many languages the word before it says nothing.
    const bool isCounted = context.home != nullptr && question.senses.has(Sense::howMany) &&
                           request.subject != nullptr && !request.subject->isAnyFile;
    if (!request.folder.empty() || std::any_of(last, phrases.end(), isName) ||
        (!isCounted && !isAfterInside(question, static_cast<std::size_t>(first - phrases.begin()))))
        return false;
    std::string name;
    for (auto each = first; each != last; ++each)
        name += (name.empty() ? "" : " ") + each->text;
    request.folder = folderNamed(context, name);
    if (request.folder.empty() && request.subject != nullptr && !request.subject->isAnyFile)
        request.folder = folderHolding(context, name);
    return !request.folder.empty();
}

/// Whether folders are to be listed: the word for them stands alone, not beside the name of one.
bool asksForFolders(const Question& question)
{
    const std::vector<Phrase>& phrases = question.phrases;
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        if (phrases[i].sense != Sense::folder)
            continue;
        const bool isBesideName =
            (i > 0 && isName(phrases[i - 1])) || (i + 1 < phrases.size() && isName(phrases[i + 1]));
        if (!isBesideName && !isAfterInside(question, i))
            return true;
    }
    return false;
}

/// "The biggest file", "il file più grande": one.
bool asksForOne(const Question& question)
{
    constexpr SenseSet kSorts{Sense::biggest, Sense::smallest, Sense::oldest, Sense::newest, Sense::last};
    return question.senses.meets(kSorts) && question.lexicon != nullptr &&
           std::ranges::any_of(question.phrases, [&](const Phrase& phrase) {
               const bool isNoun = phrase.subject != nullptr || phrase.sense == Sense::folder;
               return (isNoun || kSorts.has(phrase.sense)) && question.lexicon->meansOne(phrase.text);
           });
}

/// Of some kinds, programs and the system have many files that nobody means.
bool isOfOwnFiles(const ListRequest& request)
{
    using enum SubjectID;
    constexpr SubjectID kKinds[] = {videos,       photos,        audio,  pdfs,
                                    spreadsheets, presentations, ebooks, documents};
    const bool isByDate = request.order == Order::newest || request.order == Order::oldest ||
                          request.changedFrom != TimePoint::min() || request.changedTo != TimePoint::max() ||
                          request.openedTo != TimePoint::max();
    const bool isOfKind = request.subject != nullptr && request.ending.empty() &&
                          std::ranges::find(kKinds, request.subject->id) != std::end(kKinds);
    return !request.isHiddenOnly && (isByDate || isOfKind);
}

/// "Safe files", "everything rated Keep". False if a rating is named in another way.
bool takeRating(const Question& question, ListRequest& request)
{
    constexpr std::pair<Sense, Rating> kRatings[] = {
        {Sense::safe, Rating::safe}, {Sense::review, Rating::review}, {Sense::keep, Rating::keep}};
    const std::vector<Phrase>& phrases = question.phrases;
    for (const auto& [sense, rating] : kRatings) {
        const std::size_t at = question.position(sense);
        if (at == phrases.size())
            continue;
        const bool isOfFiles = at + 1 < phrases.size() && phrases[at + 1].subject != nullptr;
        const bool isSaidOfThem = at > 0 && phrases[at - 1].sense == Sense::mean;
        if (isOfFiles || isSaidOfThem) {
            request.rating = rating;
            narrow(request, InsightTexts::kFilesRated, {{"rating", within(label(rating))}});
        }
    }
    return request.rating || !question.senses.meets({Sense::mean, Sense::review});
}

constexpr SenseSet kChoosing{Sense::remove, Sense::makeRoom, Sense::cleanUp, Sense::advise};

/// What the scan recognised, and what is named like it anywhere in the home folder.
void takeRecognised(ListRequest& request, const AskContext& context)
{
    request.recognised = request.subject;
    for (const Finding& finding : context.findings) {
        if (std::ranges::find(request.recognised->kinds, finding.kind) == request.recognised->kinds.end())
            continue;
        for (const FileEntry& entry : finding.items)
            request.listed.insert(entry.path);
    }
    request.subject = &subjectFor(SubjectID::photos);
}

/// What may go only the scan can tell.
bool isOfScan(const Question& question, const ListRequest& request)
{
    const bool isOfKind =
        request.subject != nullptr && !request.subject->isAnyFile && request.subject->extensions.empty();
    return question.senses.meets(kChoosing) || isOfKind || request.listedAs != nullptr || request.rating ||
           request.exclusions.needsFindings();
}

} // namespace

std::optional<ListRequest> listRequestIn(const Question& question, const AskContext& context)
{
    ListRequest request;
    request.order = orderIn(question);
    if (auto exclusions = Exclusions::of(question, context))
        request.exclusions = *std::move(exclusions);
    else
        return std::nullopt;
    if (!takeSubjects(question, request) || !takeFolder(question, context, request))
        return std::nullopt;
    request.areFolders = asksForFolders(question);
    request.isHiddenOnly = question.senses.has(Sense::hidden);
    if (request.areFolders)
        request.files = InsightTexts::kFolders;
    else
        request.files = request.subject == nullptr ? InsightTexts::kFiles : request.subject->name;
    if (request.isHiddenOnly)
        narrow(request, InsightTexts::kFilesHidden, {});
    if (!takeRating(question, request) || !takeSizes(question, request) ||
        !takeDate(question, context.now, request))
        return std::nullopt;
    if (const Phrase* const ending = question.first(Sense::ending)) {
        request.ending = PathText::asciiLower(ending->text);
        narrow(request, InsightTexts::kFilesEnding, {{"ending", "." + request.ending}});
    }
    if (request.subject != nullptr && isRecognised(*request.subject) && request.listedAs == nullptr &&
        context.home != nullptr && !question.senses.meets(kChoosing) && !request.rating &&
        !request.exclusions.needsFindings())
        takeRecognised(request, context);
    request.isOfScan = isOfScan(question, request);
    request.isOwnOnly = isOfOwnFiles(request);
    if (const Phrase* const number = question.first(Sense::number))
        request.count = std::min(number->amount, kMostShown);
    else if (asksForOne(question))
        request.count = 1;
    if (!request.folder.empty())
        narrow(request, InsightTexts::kFilesIn, {{"folder", tilde(request.folder)}});
    return request;
}

bool isRecognised(const Subject& subject)
{
    using enum SubjectID;
    return subject.id == screenshots || subject.id == receipts || subject.id == memes || subject.id == blurry;
}

bool ListRequest::admits(const Finding& finding, const FileEntry& entry) const
{
    if ((rating && finding.effectiveRating(entry) != *rating) ||
        (!ending.empty() && !isNamed(entry.path, ending)))
        return false;
    if (entry.size < leastBytes || entry.size > mostBytes ||
        (!exclusions.empty() && exclusions.leaveOut(finding, entry)))
        return false;
    const bool isByDate = changedFrom != TimePoint::min() || changedTo != TimePoint::max() ||
                          order == Order::oldest || order == Order::newest;
    if (isByDate && (!entry.modified || *entry.modified < changedFrom || *entry.modified >= changedTo))
        return false;
    if (openedTo != TimePoint::max()) {
        const auto& opened = entry.lastOpened ? entry.lastOpened : entry.modified;
        if (!opened || *opened >= openedTo)
            return false;
    }
    if (!folder.empty() && (entry.path == folder || !PathText::isAtOrBelow(entry.path, folder)))
        return false;
    const auto isListedAs = [&](const Subject& each) {
        return std::ranges::find(each.kinds, finding.kind) != each.kinds.end();
    };
    if (listedAs != nullptr && !isListedAs(*listedAs))
        return false;
    if (subject == nullptr || subject->isAnyFile)
        return true;
    return subject->extensions.empty() ? isListedAs(*subject) : hasExtensionOf(*subject, entry.path);
}

} // namespace orlen::AskReader
