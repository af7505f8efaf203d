#include "insight/reader/Deeds.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>

namespace orlen::AskReader {

namespace {

/// "How much would I get back if I deleted …" asks for no return.
void mergeGain(Phrases& phrases)
{
    if ((has(phrases, Sense::howMuch) || has(phrases, Sense::howBig)) && has(phrases, Sense::undo) &&
        has(phrases, Sense::remove))
        rename(phrases, Sense::undo, Sense::makeRoom);
}

/// "What do I get back from deleting …": it is no place.
void dropIdleInside(Phrases& phrases)
{
    constexpr SenseSet kDeeds{Sense::remove, Sense::makeRoom, Sense::cleanUp};
    for (std::size_t i = 0; i + 1 < phrases.size();) {
        if (phrases[i].sense == Sense::inside && kDeeds.has(phrases[i + 1].sense))
            phrases.erase(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i)));
        else
            ++i;
    }
}

/// "How much if I include Review": what is safe, and that too.
void mergeIncluded(Phrases& phrases)
{
    using enum Sense;
    constexpr SenseSet kOnTop{review, keep};
    const auto rated =
        std::ranges::find_if(phrases, [&](const Phrase& each) { return kOnTop.has(each.sense); });
    if (!has(phrases, included) || rated == phrases.end())
        return;
    rename(phrases, included, makeRoom);
    rated->isJoined = true;
    if (!has(phrases, safe))
        phrases.insert(rated, {safe, {}, nullptr, 0, {}});
    if (!has(phrases, howMuch) && !has(phrases, howBig))
        phrases.insert(phrases.begin(), {howMuch, {}, nullptr, 0, {}});
}

/// "What would cleaning up the caches give me"
void mergeYield(Phrases& phrases)
{
    const bool isOfDeed = has(phrases, Sense::cleanUp) || has(phrases, Sense::remove);
    if (!isOfDeed || !has(phrases, Sense::make) || has(phrases, Sense::size) || phrases.empty() ||
        phrases.front().sense != Sense::what || phrases.back().sense != Sense::make)
        return;
    phrases.front().sense = Sense::howMuch;
    phrases.back().sense = Sense::makeRoom;
}

/// "How much have I freed": so far, if the question doesn't say when. "What did you delete": the last time.
void mergeFreed(Phrases& phrases)
{
    using enum Sense;
    const auto freedAt = std::ranges::find(phrases, freed, &Phrase::sense);
    if (freedAt == phrases.end())
        return;
    freedAt->sense = cleanUp;
    if (has(phrases, last) || has(phrases, when) || has(phrases, soFar) || has(phrases, unknown) ||
        has(phrases, quoted))
        return;
    const bool isOfLast = has(phrases, what) && !has(phrases, period) && !has(phrases, total);
    phrases.push_back({isOfLast ? last : soFar, {}, nullptr, 0, {}});
}

/// "Room for a 12 GB backup": what is to come has a name that nothing has yet.
void dropComingBehind(Phrases& phrases)
{
    using enum Sense;
    constexpr SenseSet kOfThings{remove, howBig, howMuch, howMany, above, below, biggest};
    const bool isOfRoom = has(phrases, makeRoom) || has(phrases, space) || has(phrases, free);
    const auto wanted = std::ranges::find(phrases, Sense::size, &Phrase::sense);
    if (!isOfRoom || wanted == phrases.end() ||
        std::ranges::any_of(phrases, [&](const Phrase& each) { return kOfThings.has(each.sense); }))
        return;
    const auto isComing = [](const Phrase& each) {
        return (each.sense == unknown || (each.subject != nullptr && each.subject->isProgram)) &&
               !each.isJoined;
    };
    const auto from = std::next(wanted);
    const auto to = std::find_if_not(from, phrases.end(), isComing);
    phrases.erase(from, to);
}

/// "I need 5 GB for a photo shoot tomorrow": what it is for.
void dropPurpose(Phrases& phrases)
{
    using enum Sense;
    constexpr SenseSet kPurpose{subject, unknown, period, general};
    const auto wanted = std::ranges::find(phrases, Sense::size, &Phrase::sense);
    if (wanted == phrases.end() || wanted == phrases.begin() || std::prev(wanted)->sense != makeRoom)
        return;
    const auto from = std::next(wanted);
    const auto to = std::find_if(from, phrases.end(), [&](const Phrase& each) { return each.isJoined; });
    const bool isPurpose =
        std::all_of(from, to, [&](const Phrase& each) { return kPurpose.has(each.sense); }) &&
        std::any_of(from, to, [](const Phrase& each) { return each.sense == unknown; });
    if (isPurpose)
        phrases.erase(from, to);
}

/// "I want to record 2 hours at 1.5 GB, will it fit": what is to come has a name that nothing has yet.
void dropComingBefore(Phrases& phrases)
{
    using enum Sense;
    constexpr SenseSet kOfThings{remove,  howBig,   howMuch, howMany, above,  below,
                                 biggest, smallest, oldest,  newest,  except, period};
    const auto wanted = std::ranges::find(phrases, Sense::size, &Phrase::sense);
    const auto asked = std::find_if(phrases.rbegin(), phrases.rend(), [](const Phrase& each) {
                           return each.isJoined;
                       }).base();
    if (wanted == phrases.end() || asked == phrases.begin())
        return;
    const auto clause = std::prev(asked);
    const bool isOfRoom = std::all_of(clause, phrases.end(), [](const Phrase& each) {
        return SenseSet{space, free, what, can, general, lasts, disk}.has(each.sense);
    });
    const bool asksRoom = std::any_of(
        clause, phrases.end(), [](const Phrase& each) { return each.sense == space || each.sense == free; });
    if (!isOfRoom || !asksRoom || wanted >= clause ||
        std::ranges::count(phrases, Sense::size, &Phrase::sense) > 1 ||
        std::ranges::any_of(phrases, [&](const Phrase& each) { return kOfThings.has(each.sense); }))
        return;
    Phrases kept{*wanted};
    kept.insert(kept.end(), clause, phrases.end());
    phrases = std::move(kept);
}

} // namespace

void mergeDeeds(Phrases& phrases)
{
    dropIdleInside(phrases);
    mergeIncluded(phrases);
    mergeYield(phrases);
    mergeFreed(phrases);
    mergeGain(phrases);
}

void mergeMaking(Phrases& phrases)
{
    constexpr SenseSet kAlone{Sense::make, Sense::size, Sense::general, Sense::can};
    const bool isAlone =
        std::ranges::all_of(phrases, [&](const Phrase& each) { return kAlone.has(each.sense); });
    const bool isOfRoom =
        has(phrases, Sense::size) && (isAlone || has(phrases, Sense::free) || has(phrases, Sense::space));
    if (isOfRoom)
        rename(phrases, Sense::make, Sense::makeRoom);
    else
        drop(phrases, Sense::make);
    for (std::size_t i = 0; i + 1 < phrases.size(); ++i) {
        // One word; "do I still have" asks.
        const bool isVerb = phrases[i].sense == Sense::free && phrases[i].text.find(' ') == std::string::npos;
        if (isVerb && phrases[i + 1].sense == Sense::size)
            phrases[i].sense = Sense::makeRoom;
    }
}

void dropComing(Phrases& phrases)
{
    dropPurpose(phrases);
    dropComingBehind(phrases);
    dropComingBefore(phrases);
}

void mergeYet(Phrases& phrases)
{
    constexpr SenseSet kNameable{Sense::subject, Sense::ending, Sense::unknown, Sense::quoted};
    for (std::size_t i = 0; i < phrases.size();) {
        if (phrases[i].sense != Sense::yet) {
            ++i;
            continue;
        }
        const bool isLast = i + 1 == phrases.size();
        if (!isLast && kNameable.has(phrases[i + 1].sense)) {
            phrases[i++].sense = Sense::except;
            continue;
        }
        if (!isLast)
            phrases[i + 1].isJoined = true;
        phrases.erase(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i)));
    }
}

void mergeBuildFolders(Phrases& phrases)
{
    constexpr std::string_view kNames[] = {"target", "dist", "build", "node_modules"};
    const auto isOutput = [](const Phrase& each) {
        return each.subject != nullptr && each.subject->id == SubjectID::buildOutput;
    };
    if (std::ranges::none_of(phrases, isOutput))
        return;
    for (std::size_t i = 0; i < phrases.size();) {
        const bool isOne = phrases[i].sense == Sense::unknown &&
                           std::ranges::find(kNames, phrases[i].text) != std::end(kNames);
        if (!isOne) {
            ++i;
            continue;
        }
        const bool saysFolder = i + 1 < phrases.size() && phrases[i + 1].sense == Sense::folder;
        const auto from = std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i));
        phrases.erase(from, std::next(from, saysFolder ? 2 : 1));
    }
}

void nameCaches(Phrases& phrases, const Lexicon& lexicon)
{
    using enum SubjectID;
    const auto isCaches = [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->id == caches;
    };
    const auto mayOwn = [](const Phrase& phrase) {
        return phrase.subject != nullptr &&
               (!phrase.subject->folder.empty() || phrase.subject->id == trash) && phrase.subject->id != home;
    };
    const bool isBefore = lexicon.hasCompounds() || &lexicon == Lexicon::all().data();
    for (std::size_t i = 0; i + 1 < phrases.size(); ++i) {
        Phrase& owner = phrases[isBefore ? i : i + 1];
        const Phrase& part = phrases[isBefore ? i + 1 : i];
        if (!phrases[i + 1].isJoined && isCaches(part) && mayOwn(owner)) {
            owner.sense = Sense::unknown;
            owner.subject = nullptr;
        }
    }
}

} // namespace orlen::AskReader
