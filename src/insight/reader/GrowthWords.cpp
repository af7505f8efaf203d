#include "insight/reader/GrowthWords.h"

#include <algorithm>
#include <cstddef>

namespace orlen::AskReader {

namespace {

using enum Sense;

/// Of files of every kind, the home folder or none: what is compared is space.
bool isOfSpace(const Phrase& phrase)
{
    return phrase.subject == nullptr || phrase.subject->id == SubjectID::home;
}

/// "Where did 20 GB disappear to": of space, it was used up. Of anything else, it is no longer there.
void mergeGone(Phrases& phrases)
{
    const bool isUsedUp = (has(phrases, size) || has(phrases, space) || has(phrases, disk)) &&
                          std::ranges::all_of(phrases, isOfSpace) && !has(phrases, Sense::remove) &&
                          !has(phrases, cleanUp);
    rename(phrases, gone, isUsedUp ? grow : happens);
}

/// "Is Downloads bigger than last month": than at a time in the past; "more than a year" is a stretch.
void mergeBiggerThan(Phrases& phrases)
{
    constexpr SenseSet kCompared{what, can,    howMuch, howBig,  subject, above,   period, space,   disk,
                                 used, folder, free,    general, why,     unknown, takes,  biggest, inside};
    if (!std::ranges::all_of(phrases, [&](const Phrase& each) { return kCompared.has(each.sense); }))
        return;
    for (std::size_t i = 0; i + 1 < phrases.size(); ++i) {
        const Phrase& next = phrases[i + 1];
        if (phrases[i].sense != above || !next.period || next.isJoined || next.period->isAhead)
            continue;
        // "More than a year" is no time to compare with.
        if (next.period->next)
            continue;
        phrases[i].sense = since;
        phrases.insert(phrases.begin(), {grow, {}, nullptr, 0, {}});
        return;
    }
}

} // namespace

void mergeGrowth(Phrases& phrases)
{
    mergeGone(phrases);
    mergeBiggerThan(phrases);
}

} // namespace orlen::AskReader
