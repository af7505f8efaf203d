#include "insight/reader/Merging.h"

#include "insight/reader/AboutOrlen.h"
#include "insight/reader/Deeds.h"
#include "insight/reader/GrowthWords.h"
#include "insight/reader/Idioms.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>

namespace orlen::AskReader {

namespace {

/// "What takes up all the room? The files I have are tiny": what is said beside it is no order.
void dropAside(Phrases& phrases)
{
    using enum Sense;
    const bool asksWhy = has(phrases, why) && has(phrases, full);
    const auto end = std::find_if(phrases.begin(), phrases.end(), [&](const Phrase& each) {
        return each.isJoined || (asksWhy && each.sense == when);
    });
    SenseSet asked;
    SenseSet aside;
    for (auto each = phrases.begin(); each != phrases.end(); ++each)
        (each < end ? asked : aside).add(each->sense);
    const bool isComplete = (asked.meets({what, why}) && asked.has(full)) ||
                            (asked.has(what) && asked.has(takes) && asked.meets({space, disk, most}));
    const bool isLament =
        asked.has(full) && asked.isWithin({full, what, disk, space, general}) && aside.has(size);
    constexpr SenseSet kAside{smallest, installed, period, last, number, size,  negation, general,
                              subject,  disk,      newest, only, takes,  space, used,     when};
    if ((isComplete || isLament) && aside.isWithin(kAside) &&
        aside.meets({smallest, installed, newest, size}))
        phrases.erase(end, phrases.end());
}

/// "What can I delete today": of what is not about dates, today says nothing.
void mergeToday(Phrases& phrases)
{
    using enum Sense;
    constexpr SenseSet kOfDates{newest, oldest, grow, cleanUp, soFar,  undo,   since,   after,
                                before, inside, full, lasts,   ending, opened, unopened};
    SenseSet senses;
    for (const Phrase& phrase : phrases)
        senses.add(phrase.sense);
    const bool isOfFiles = senses.has(subject) && !senses.meets({can, remove, safe, makeRoom, howBig, takes});
    if (senses.meets(kOfDates) || isOfFiles)
        return;
    std::erase_if(phrases, [](const Phrase& phrase) { return phrase.period && phrase.period->isToday; });
}

/// "Not … opened", "I never use": with whatever stands between.
void mergeNegation(Phrases& phrases)
{
    const bool isNegated = has(phrases, Sense::negation);
    // "Apps that I don't use": of a file, to use says little.
    const bool isOfApps = std::ranges::any_of(
        phrases, [](const Phrase& phrase) { return phrase.subject != nullptr && phrase.subject->isProgram; });
    if (isNegated && isOfApps)
        rename(phrases, Sense::takes, Sense::handled);
    if (isNegated && (has(phrases, Sense::opened) || has(phrases, Sense::handled))) {
        rename(phrases, Sense::opened, Sense::unopened);
        rename(phrases, Sense::handled, Sense::unopened);
        drop(phrases, Sense::negation);
    }
    // "Not changed since August"
    if (isNegated && has(phrases, Sense::newest) && has(phrases, Sense::since) &&
        has(phrases, Sense::period)) {
        rename(phrases, Sense::newest, Sense::before);
        drop(phrases, Sense::negation);
    }
    const bool isOfFiles = has(phrases, Sense::period) && has(phrases, Sense::subject);
    rename(phrases, Sense::opened, Sense::general);
    rename(phrases, Sense::handled, isOfFiles ? Sense::general : Sense::used);
    if (has(phrases, Sense::unopened))
        drop(phrases, Sense::negation);
}

/// "Audio files not in Music": the folder is left out, not what the word says of files.
void meanPlace(Phrase& phrase)
{
    const Subject* const place = phrase.subject == nullptr || phrase.subject->folder.empty()
                                     ? nullptr
                                     : folderSubject(*phrase.subject);
    if (place != nullptr)
        phrase.subject = place;
}

/// "Besides photos and videos", "without the ones in Downloads": one phrase of what is left out. Where
/// nothing nameable follows, the word only denies.
void mergeExclusions(Phrases& phrases)
{
    constexpr SenseSet kNameable{Sense::subject, Sense::ending, Sense::unknown, Sense::quoted};
    const bool isOnlyDenied =
        phrases.size() > 1 && phrases.front().sense == Sense::negation &&
        std::ranges::all_of(phrases.begin() + 1, phrases.end(),
                            [&](const Phrase& each) { return kNameable.has(each.sense); });
    if (isOnlyDenied)
        phrases.front().sense = Sense::except;
    for (std::size_t i = 1; i + 1 < phrases.size(); ++i) {
        // "Old downloads, not the PDF"
        if (phrases[i].sense == Sense::negation && phrases[i].isJoined && kNameable.has(phrases[i + 1].sense))
            phrases[i].sense = Sense::except;
    }
    for (std::size_t i = 1; i + 2 < phrases.size(); ++i) {
        // "Videos that aren't in Videos"
        if (phrases[i].sense == Sense::negation && phrases[i + 1].sense == Sense::inside &&
            kNameable.has(phrases[i + 2].sense))
            phrases[i].sense = Sense::outside;
    }
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        const bool isOutside = phrases[i].sense == Sense::outside;
        if ((!isOutside && phrases[i].sense != Sense::except) || !phrases[i].excluded.empty())
            continue;
        const auto from = std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 1);
        const auto first =
            std::find_if(from, phrases.end(), [](const Phrase& each) { return each.sense != Sense::inside; });
        const auto last = std::find_if(first, phrases.end(),
                                       [&](const Phrase& each) { return !kNameable.has(each.sense); });
        if (first == last) {
            phrases[i].sense = Sense::negation;
            continue;
        }
        Phrases excluded(std::make_move_iterator(first), std::make_move_iterator(last));
        if (isOutside || first != from)
            std::ranges::for_each(excluded, meanPlace);
        phrases.erase(from, last);
        phrases[i].sense = Sense::except;
        phrases[i].excluded = std::move(excluded);
    }
}

/// "Leave the browser cache alone": left out, as with "except".
void mergeLeftAlone(Phrases& phrases)
{
    constexpr SenseSet kNameable{Sense::subject, Sense::ending, Sense::unknown, Sense::quoted};
    const auto alone = std::ranges::find(phrases, Sense::inPeace, &Phrase::sense);
    if (alone == phrases.end())
        return;
    auto first = alone;
    while (first != phrases.begin() && kNameable.has(std::prev(first)->sense))
        --first;
    if (first != alone && first != phrases.begin())
        std::prev(first)->sense = Sense::except;
    drop(phrases, Sense::inPeace);
}

bool isPhotos(const Subject& subject)
{
    return subject.id == SubjectID::photos;
}

bool isOneOf(SubjectID id, std::initializer_list<SubjectID> ids)
{
    return std::ranges::find(ids, id) != ids.end();
}

/// What two subjects side by side mean; null if they are two.
const Subject* together(const Subject& a, const Subject& b)
{
    using enum SubjectID;
    if (&a == &b)
        return &a;
    if (isPhotos(b)) {
        if (a.id == duplicates)
            return &subjectFor(similarPhotos);
        return isOneOf(a.id, {screenshots, receipts, memes, blurry, similarPhotos, rawPhotos}) ? &a : nullptr;
    }
    if (b.isAnyFile)
        return a.isAnyFile || a.kinds.empty() == a.extensions.empty() ? nullptr : &a;
    if (b.id == apps)
        return isOneOf(a.id, {caches, startup, flatpak, snap, games, containers}) ? &a : nullptr;
    if (b.id == caches)
        return isOneOf(a.id, {npm, pip, gradle, homebrew}) ? &a : nullptr;
    if (b.id == downloads)
        return a.id == oldDownloads ? &a : nullptr;
    if (b.id == games) // "does Steam start by itself"
        return a.id == startup ? &a : nullptr;
    return nullptr;
}

/// What two phrases side by side say in one; nothing if they stay two.
std::optional<Phrase> together(const Phrase& a, const Phrase& b)
{
    if (b.isJoined)
        return std::nullopt;
    Phrase one = a;
    one.text += " " + b.text;
    if (a.subject != nullptr && b.subject != nullptr) {
        const Subject* const both = together(*a.subject, *b.subject);
        one.subject = both != nullptr ? both : together(*b.subject, *a.subject);
        return one.subject == nullptr ? std::nullopt : std::optional(std::move(one));
    }
    const Subject* const subject = a.subject != nullptr ? a.subject : b.subject;
    if (subject == nullptr || (a.sense != Sense::folder && b.sense != Sense::folder))
        return std::nullopt;
    one.sense = Sense::subject;
    one.subject = folderSubject(*subject);
    if (one.subject == nullptr && !subject->folder.empty())
        one.subject = subject;
    return one.subject == nullptr ? std::nullopt : std::optional(std::move(one));
}

/// "The biggest 100 MB" compares; so do languages in which "larger than" and "largest of" are the same words.
void mergeComparisons(Phrases& phrases)
{
    for (std::size_t i = 0; i + 1 < phrases.size(); ++i) {
        if (phrases[i + 1].sense != Sense::size || phrases[i + 1].isJoined)
            continue;
        if (phrases[i].sense == Sense::biggest)
            phrases[i].sense = Sense::above;
        else if (phrases[i].sense == Sense::smallest)
            phrases[i].sense = Sense::below;
    }
}

/// "How much could I free at most": nothing is compared.
void dropIdleComparison(Phrases& phrases)
{
    constexpr SenseSet kCompared{Sense::size, Sense::period, Sense::number, Sense::subject, Sense::unknown};
    if (std::ranges::none_of(phrases, [&](const Phrase& each) { return kCompared.has(each.sense); }))
        drop(phrases, Sense::below);
}

/// "Between 1 and 5 GB": the unit counts for both.
void mergeRange(Phrases& phrases)
{
    constexpr std::int64_t kMega = 1'000'000;
    constexpr std::int64_t kGiga = 1'000 * kMega;
    for (std::size_t i = 1; i + 1 < phrases.size(); ++i) {
        if (phrases[i - 1].sense != Sense::above || phrases[i].sense != Sense::number ||
            phrases[i + 1].sense != Sense::size)
            continue;
        phrases[i].sense = Sense::size;
        phrases[i].amount *= phrases[i + 1].amount >= kGiga ? kGiga : kMega;
    }
}

/// "Doubles in my pictures" are similar photos.
void mergePlaces(Phrases& phrases)
{
    for (std::size_t i = 0; i + 2 < phrases.size(); ++i) {
        const Subject* const kind = phrases[i].subject;
        const Subject* const place = phrases[i + 2].subject;
        if (kind != nullptr && kind->id == SubjectID::duplicates && phrases[i + 1].sense == Sense::inside &&
            place != nullptr && isOneOf(place->id, {SubjectID::photos, SubjectID::picturesFolder})) {
            phrases[i].subject = &subjectFor(SubjectID::similarPhotos);
            phrases.erase(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 1),
                          std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 3));
        }
    }
}

/// "How many subfolders does Documents have": those in it.
void placeCountedFolders(Phrases& phrases, bool isEnglish)
{
    for (std::size_t i = 1; i + 1 < phrases.size(); ++i) {
        const Phrase& holder = phrases[i + 1];
        const bool isHolder = holder.sense == Sense::unknown || holder.sense == Sense::quoted ||
                              (holder.subject != nullptr && !holder.subject->folder.empty());
        // "How many files are videos" asks for the kind.
        const bool isCalledSo =
            isEnglish && !holder.text.empty() && holder.text.front() >= 'A' && holder.text.front() <= 'Z';
        // "How many files and folders"
        const Subject* const other = phrases[i - 1].subject;
        const bool isCounted = phrases[i - 1].sense == Sense::howMany ||
                               (phrases[i].isJoined && other != nullptr && other->isAnyFile);
        const bool areFiles = phrases[i].subject != nullptr && phrases[i].subject->isAnyFile && isCalledSo;
        if ((phrases[i].sense == Sense::folder || areFiles) && isCounted && isHolder && !holder.isJoined)
            phrases.insert(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 1),
                           Phrase{Sense::inside, {}, nullptr, 0, {}});
    }
}

/// "Big files older than a year": by size, of all that the condition fits; alone, the words are a finding's.
void meanBySize(Phrases& phrases)
{
    constexpr SenseSet kConditions{Sense::period, Sense::unopened, Sense::number, Sense::inside,
                                   Sense::size,   Sense::oldest,   Sense::newest};
    const auto found = std::ranges::find_if(phrases, [](const Phrase& each) {
        return each.subject != nullptr && each.subject->id == SubjectID::largeFiles;
    });
    if (found == phrases.end() ||
        std::ranges::none_of(phrases, [&](const Phrase& each) { return kConditions.has(each.sense); }))
        return;
    found->subject = &subjectFor(SubjectID::files);
    Phrase sorting = *found;
    sorting.sense = Sense::biggest;
    sorting.subject = nullptr;
    found->isJoined = false;
    phrases.insert(found, std::move(sorting));
}

/// "Archivos de descargas": those in the folder, in languages whose word for "of" says little else.
void placeFiles(Phrases& phrases)
{
    for (std::size_t i = 0; i + 1 < phrases.size(); ++i) {
        const Subject* const files = phrases[i].subject;
        const Subject* const folder = phrases[i + 1].subject;
        if (files != nullptr && files->isAnyFile && folder != nullptr && !folder->folder.empty() &&
            folder->extensions.empty() && folder->id != SubjectID::home && !phrases[i + 1].isJoined)
            phrases.insert(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 1),
                           Phrase{Sense::inside, {}, nullptr, 0, {}});
    }
}

void mergeNeighbours(Phrases& phrases)
{
    for (std::size_t i = 0; i + 1 < phrases.size();) {
        if (std::optional<Phrase> one = together(phrases[i], phrases[i + 1])) {
            phrases[i] = *std::move(one);
            phrases.erase(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 1));
        } else {
            ++i;
        }
    }
}

} // namespace

Question merged(const Question& question)
{
    Phrases phrases = question.phrases;
    constexpr SenseSet kOfSelf{Sense::self, Sense::what, Sense::can, Sense::general};
    if (std::ranges::any_of(phrases, [&](const Phrase& each) { return !kOfSelf.has(each.sense); }))
        drop(phrases, Sense::self);
    const bool isEnglish = question.lexicon == Lexicon::all().data();
    mergeYet(phrases);
    mergeIdioms(phrases);
    mergeGrowth(phrases);
    mergeOrders(phrases, isEnglish);
    mergeOfOrlen(phrases, *question.lexicon);
    dropAside(phrases);
    mergeLeftAlone(phrases);
    mergeDeeds(phrases);
    mergeToday(phrases);
    mergeComparisons(phrases);
    mergeRange(phrases);
    dropIdleComparison(phrases);
    mergeMaking(phrases);
    dropComing(phrases);
    placeCountedFolders(phrases, isEnglish);
    mergeBuildFolders(phrases);
    if (!isEnglish)
        placeFiles(phrases);
    mergeNeighbours(phrases);
    nameCaches(phrases, *question.lexicon);
    mergePlaces(phrases);
    mergeExclusions(phrases);
    mergeNegation(phrases);
    meanBySize(phrases);
    return withPhrases(question, std::move(phrases));
}

} // namespace orlen::AskReader
