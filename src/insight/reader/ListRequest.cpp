#include "insight/reader/ListRequest.h"

#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/ListConditions.h"
#include "insight/reader/ListPlaces.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

constexpr std::int64_t kMostShown = 20;

Order orderIn(const Question& question)
{
    // "The largest thing changed since May": the date says which, the other word in what order.
    const bool isDated = question.senses.has(Sense::period);
    if (isDated && question.senses.has(Sense::biggest))
        return Order::biggest;
    if (isDated && question.senses.has(Sense::smallest))
        return Order::smallest;
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

/// Of some kinds, programs and the system have many files that nobody means. Of files of every kind, all
/// count, in whatever order they are listed.
bool isOfOwnFiles(const ListRequest& request)
{
    using enum SubjectID;
    constexpr SubjectID kKinds[] = {videos,       photos,        rawPhotos, audio,     pdfs,
                                    spreadsheets, presentations, ebooks,    documents, textDocuments};
    const bool isOfKind = request.subject != nullptr && request.ending.empty() &&
                          std::ranges::find(kKinds, request.subject->id) != std::end(kKinds);
    return !request.isHiddenOnly && isOfKind;
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
        if (!isListedAs(*request.recognised, finding.kind))
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
    // "The biggest new files": nobody knows which are new.
    if (question.senses.has(Sense::newest) && question.senses.meets({Sense::biggest, Sense::smallest}) &&
        !question.senses.has(Sense::period))
        return std::nullopt;
    request.order = orderIn(question);
    if (auto exclusions = Exclusions::of(question, context))
        request.exclusions = *std::move(exclusions);
    else
        return std::nullopt;
    if (!takeSubjects(question, request) || !takeFolder(question, context, request))
        return std::nullopt;
    request.areFolders = asksForFolders(question);
    // "Files and folders" would be two lists.
    if (request.areFolders && request.subject != nullptr && question.first(Sense::folder)->isJoined)
        return std::nullopt;
    request.isHiddenOnly = question.senses.has(Sense::hidden);
    if (request.areFolders)
        request.files = InsightTexts::kFolders;
    else
        request.files = request.subject == nullptr ? InsightTexts::kFiles : request.subject->name;
    if (request.isHiddenOnly)
        narrow(request, InsightTexts::kFilesHidden, {});
    if (!request.name.empty())
        narrow(request, InsightTexts::kFilesNamed, {{"name", PathText::forDisplay(request.name)}});
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

bool holdsWordsInName(const ListRequest& request, std::string_view path)
{
    const std::string lower = lowered(PathText::lastComponent(path));
    return std::ranges::all_of(request.words,
                               [&](const std::string& word) { return holdsWord(lower, word); });
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
    if (!words.empty() && !holdsWordsInName(*this, entry.path))
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
    if (listedAs != nullptr && !isListedAs(*listedAs, finding.kind))
        return false;
    if (subject == nullptr || subject->isAnyFile)
        return true;
    return subject->extensions.empty() ? isListedAs(*subject, finding.kind)
                                       : hasExtensionOf(*subject, entry.path);
}

} // namespace orlen::AskReader
