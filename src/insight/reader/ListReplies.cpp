#include "insight/reader/ListReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

constexpr std::int64_t kUsualCount = 5;
constexpr std::int64_t kMostShown = 20;

enum class Order { biggest, smallest, oldest, newest };

/// What a list is to hold, and how the answer says so.
struct Request {
    const Subject* subject = nullptr; ///< null: files of every kind
    const Subject* finding = nullptr; ///< only what is listed as this
    std::string folder;               ///< empty: anywhere
    std::int64_t leastBytes = 0;
    std::int64_t mostBytes = std::numeric_limits<std::int64_t>::max();
    TimePoint changedFrom = TimePoint::min();
    TimePoint changedTo = TimePoint::max();
    TimePoint openedTo = TimePoint::max();
    Order order = Order::biggest;
    std::int64_t count = kUsualCount;
    std::optional<Rating> rating;
    Exclusions exclusions;
    Message files; ///< what it lists, in words: "videos over 1 GB in ~/Downloads"
};

Text heading(Order order)
{
    switch (order) {
    case Order::biggest:
        return InsightTexts::kTheBiggest;
    case Order::smallest:
        return InsightTexts::kTheSmallest;
    case Order::oldest:
        return InsightTexts::kTheOldest;
    case Order::newest:
        return InsightTexts::kTheNewest;
    }
    return {};
}

Order orderIn(const Question& question)
{
    if (question.senses.has(Sense::oldest))
        return Order::oldest;
    if (question.senses.has(Sense::newest))
        return Order::newest;
    return question.senses.has(Sense::smallest) ? Order::smallest : Order::biggest;
}

/// A kind to list: files by extension or finding, or every file.
bool isKind(const Subject& subject)
{
    return subject.isAnyFile || !subject.extensions.empty() ||
           (!subject.kinds.empty() && subject.folder.empty());
}

/// Says one more condition of the files.
void narrow(Request& request, const Text& condition, std::vector<Place> places)
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
bool takeSizes(const Question& question, Request& request)
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
bool takeDate(const Question& question, TimePoint now, Request& request)
{
    const Phrase* const phrase = question.first(Sense::period);
    if (phrase == nullptr)
        return !question.senses.meets({Sense::before, Sense::after, Sense::since, Sense::unopened});
    const Period& period = *phrase->period;
    // "Over the summer" is no age.
    if (period.from > now || (period.isAhead && isOlderThan(question)))
        return false;
    if (question.senses.has(Sense::unopened)) {
        request.openedTo = period.from;
        narrow(request, InsightTexts::kFilesOpenedBefore, {{"date", dayOf(period.from)}});
    } else if (question.senses.has(Sense::before) || isOlderThan(question)) {
        request.changedTo = period.from;
        narrow(request, InsightTexts::kFilesChangedBefore, {{"date", dayOf(period.from)}});
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
bool takeBoth(const Subject& subject, Request& request)
{
    const Subject* const other = request.subject;
    if (other == nullptr || request.finding != nullptr ||
        other->extensions.empty() == subject.extensions.empty())
        return false;
    request.finding = subject.extensions.empty() ? &subject : other;
    request.subject = subject.extensions.empty() ? other : &subject;
    return true;
}

/// Sorts the subjects into what is listed and where. False if one is neither, or there are two of a sort.
bool takeSubjects(const Question& question, Request& request)
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

/// A folder given by its path or its name below the home folder. False if unknown words are none.
bool takeFolder(const Question& question, const AskContext& context, Request& request)
{
    const Phrase* const unknown = question.first(Sense::unknown);
    const Phrase* const named = unknown != nullptr ? unknown : question.first(Sense::quoted);
    if (named == nullptr)
        return true;
    if (!request.folder.empty() || question.position(named->sense) == 0 ||
        question.phrases[question.position(named->sense) - 1].sense != Sense::inside ||
        std::ranges::count(question.phrases, Sense::unknown, &Phrase::sense) > 1)
        return false;
    request.folder = pathIn(named->text);
    if (!request.folder.empty())
        return true;
    const Found found = findNamed(context, named->text);
    if (found.fit == Fit::whole && !found.measured.empty())
        request.folder = found.measured.front().path;
    return !request.folder.empty();
}

/// "Safe files", "everything rated Keep". False if a rating is named in another way.
bool takeRating(const Question& question, Request& request)
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

std::optional<Request> requestIn(const Question& question, const AskContext& context)
{
    Request request;
    request.order = orderIn(question);
    if (auto exclusions = Exclusions::of(question, context))
        request.exclusions = *std::move(exclusions);
    else
        return std::nullopt;
    if (!takeSubjects(question, request) || !takeFolder(question, context, request))
        return std::nullopt;
    request.files = request.subject == nullptr ? InsightTexts::kFiles : request.subject->name;
    if (!takeRating(question, request) || !takeSizes(question, request) ||
        !takeDate(question, context.now, request))
        return std::nullopt;
    if (const Phrase* const number = question.first(Sense::number))
        request.count = std::min(number->amount, kMostShown);
    if (!request.folder.empty())
        narrow(request, InsightTexts::kFilesIn, {{"folder", tilde(request.folder)}});
    return request;
}

bool fits(const Request& request, const Finding& finding, const FileEntry& entry)
{
    if (request.rating && finding.effectiveRating(entry) != *request.rating)
        return false;
    if (entry.size < request.leastBytes || entry.size > request.mostBytes ||
        (!request.exclusions.empty() && request.exclusions.leaveOut(finding, entry)))
        return false;
    const bool isByDate = request.changedFrom != TimePoint::min() || request.changedTo != TimePoint::max() ||
                          request.order == Order::oldest || request.order == Order::newest;
    if (isByDate &&
        (!entry.modified || *entry.modified < request.changedFrom || *entry.modified >= request.changedTo))
        return false;
    if (request.openedTo != TimePoint::max()) {
        const auto& opened = entry.lastOpened ? entry.lastOpened : entry.modified;
        if (!opened || *opened >= request.openedTo)
            return false;
    }
    if (!request.folder.empty() &&
        (entry.path == request.folder || !PathText::isAtOrBelow(entry.path, request.folder)))
        return false;
    const auto isListedAs = [&](const Subject& subject) {
        return std::ranges::find(subject.kinds, finding.kind) != subject.kinds.end();
    };
    if (request.finding != nullptr && !isListedAs(*request.finding))
        return false;
    const Subject* const subject = request.subject;
    if (subject == nullptr || subject->isAnyFile)
        return true;
    return subject->extensions.empty() ? isListedAs(*subject) : hasExtensionOf(*subject, entry.path);
}

/// What fits, each path once.
std::vector<Hit> fitting(const Request& request, const AskContext& context)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (fits(request, finding, entry))
                hits.push_back({&finding, &entry});
        }
    }
    return eachOnce(std::move(hits));
}

void sortFirst(std::vector<Hit>& hits, Order order, std::size_t count)
{
    const auto isBefore = [order](const Hit& a, const Hit& b) {
        if (order == Order::oldest || order == Order::newest) {
            const auto changedA = a.entry->modified;
            const auto changedB = b.entry->modified;
            if (changedA != changedB)
                return order == Order::oldest ? changedA < changedB : changedA > changedB;
        } else if (a.entry->size != b.entry->size) {
            return order == Order::biggest ? a.entry->size > b.entry->size : a.entry->size < b.entry->size;
        }
        return a.entry->path < b.entry->path;
    };
    std::ranges::partial_sort(hits, hits.begin() + static_cast<std::ptrdiff_t>(count), isBefore);
}

Message lineFor(const Request& request, const Hit& hit)
{
    const FileEntry& entry = *hit.entry;
    std::vector<Place> places{{"path", tilde(entry.path)},
                              {"size", Bytes{entry.size}},
                              {"rating", within(label(hit.finding->effectiveRating(entry)))}};
    const bool isByOpening = request.openedTo != TimePoint::max() && entry.lastOpened;
    const auto& date = isByOpening ? entry.lastOpened : entry.modified;
    if (!date)
        return {InsightTexts::kFileUndated, std::move(places)};
    places.push_back({"date", Moment{*date}});
    return {isByOpening ? InsightTexts::kFileOpened : InsightTexts::kFileChanged, std::move(places)};
}

} // namespace

std::optional<Answer> listOfFiles(const Question& question, const AskContext& context)
{
    const std::optional<Request> request = requestIn(question, context);
    if (!request)
        return std::nullopt;
    if (context.findings.empty())
        return Answer{InsightTexts::kNoScan, {}};
    const Place files{"files", within(request->files)};
    std::vector<Hit> hits = fitting(*request, context);
    if (hits.empty())
        return Answer{
            AskText::lines({request->exclusions.said(), Message{InsightTexts::kNoneListed, {files}}}), {}};
    std::int64_t bytes = 0;
    for (const Hit& hit : hits)
        bytes = checkedAdd(bytes, hit.entry->size);
    const std::size_t shown = std::min(hits.size(), static_cast<std::size_t>(request->count));
    sortFirst(hits, request->order, shown);
    const Message sum{InsightTexts::kFilesListed,
                      {files, {"count", std::ssize(hits)}, {"size", Bytes{bytes}}}};
    std::vector<Message> lines{request->exclusions.said(),
                               AskText::sentences({sum, heading(request->order)})};
    Answer answer;
    for (std::size_t i = 0; i < shown; ++i) {
        lines.push_back(lineFor(*request, hits[i]));
        answer.paths.push_back(hits[i].entry->path);
        if (std::ranges::find(answer.findingIDs, hits[i].finding->id()) == answer.findingIDs.end())
            answer.findingIDs.emplace_back(hits[i].finding->id());
    }
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

std::optional<Answer> listOfRated(const Question& question, const AskContext& context)
{
    const std::optional<Request> request = requestIn(question, context);
    return request && request->rating ? listOfFiles(question, context) : std::nullopt;
}

std::optional<Answer> listOfBoth(const Question& question, const AskContext& context)
{
    if (question.count(Sense::subject) != 2)
        return std::nullopt;
    const std::optional<Answer> answer = listOfFiles(question, context);
    return answer && !answer->paths.empty() ? answer : std::nullopt;
}

} // namespace orlen::AskReader
