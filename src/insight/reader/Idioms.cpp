#include "insight/reader/Idioms.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace orlen::AskReader {

namespace {

using enum Sense;

bool isOf(const Phrase& phrase, SubjectID id)
{
    return phrase.subject != nullptr && phrase.subject->id == id;
}

/// "What does the School folder contain", "que contient le dossier School": what is in it. "Which folder
/// contains report.pdf" asks the other way round.
void mergeHolding(Phrases& phrases)
{
    constexpr SenseSet kBeside{what, holds, folder, unknown, quoted, subject, general, can};
    const auto at = std::ranges::find(phrases, holds, &Phrase::sense);
    if (at == phrases.end())
        return;
    const auto isThing = [](const Phrase& each) {
        return each.sense == unknown || each.sense == quoted ||
               (each.subject != nullptr && !each.subject->folder.empty());
    };
    const bool isFirst = at == phrases.begin();
    const bool isAtEdge =
        isFirst || std::next(at) == phrases.end() ||
        (std::prev(at)->sense == what && std::prev(at) == phrases.begin() && std::next(at) != phrases.end());
    const bool asksWhat = isFirst || phrases.front().sense == what;
    const bool isOfOne =
        isAtEdge && asksWhat && std::ranges::count_if(phrases, isThing) == 1 &&
        std::ranges::all_of(phrases, [&](const Phrase& each) { return kBeside.has(each.sense); });
    phrases.erase(at);
    if (!isOfOne)
        return;
    if (phrases.front().sense != what)
        phrases.insert(phrases.begin(), {what, {}, nullptr, 0, {}});
    const auto thing = std::ranges::find_if(phrases, isThing);
    phrases.insert(thing, {inside, {}, nullptr, 0, {}});
}

/// "Is there anything left from apps I uninstalled": what is left over is said already.
void mergeLeft(Phrases& phrases)
{
    constexpr SenseSet kOther{disk, space, size, howMuch, howBig};
    const auto isLeftovers = [](const Phrase& each) { return isOf(each, SubjectID::leftovers); };
    if (!has(phrases, Sense::free) || std::ranges::none_of(phrases, isLeftovers) ||
        std::ranges::any_of(phrases, [&](const Phrase& each) { return kOther.has(each.sense); }))
        return;
    std::erase_if(phrases, [](const Phrase& each) {
        return each.sense == Sense::free || each.sense == inside ||
               (each.subject != nullptr && each.subject->isAnyFile);
    });
}

/// "Can I put the videos in the trash"
void mergeTrashing(Phrases& phrases)
{
    constexpr SenseSet kBeside{can,    put,     subject, unknown,       quoted, ending,
                               inside, general, what,    Sense::remove, safe};
    const auto isTrash = [](const Phrase& each) { return isOf(each, SubjectID::trash); };
    const auto trash = std::ranges::find_if(phrases, isTrash);
    // In some languages the preposition is part of the phrase: "en la papelera".
    const bool hasInside =
        trash != phrases.end() && trash != phrases.begin() && std::prev(trash)->sense == inside;
    const bool isIntoIt =
        has(phrases, put) && trash != phrases.end() && phrases.size() > 2 &&
        std::ranges::all_of(phrases, [&](const Phrase& each) { return kBeside.has(each.sense); });
    if (isIntoIt) {
        phrases.erase(hasInside ? std::prev(trash) : trash, std::next(trash));
        rename(phrases, put, Sense::remove);
    }
    drop(phrases, put);
}

/// "El archivo más antiguo que tengo": older than nothing, so the oldest.
void mergeSuperlatives(Phrases& phrases)
{
    constexpr SenseSet kBehind{what, general, inside, can};
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        const bool isLast = i + 1 == phrases.size();
        const std::string_view text = phrases[i].text;
        if ((!text.ends_with(" que") && !text.ends_with(" qu")) ||
            (!isLast && !kBehind.has(phrases[i + 1].sense)))
            continue;
        const Sense sense = phrases[i].sense;
        if (sense != Sense::before && sense != since && sense != above && sense != below)
            continue;
        phrases[i].sense = sense == Sense::before ? oldest
                           : sense == since       ? newest
                           : sense == above       ? biggest
                                                  : smallest;
        if (!isLast && i > 0 && phrases[i + 1].sense == what)
            phrases.erase(std::next(phrases.begin(), static_cast<std::ptrdiff_t>(i) + 1));
    }
}

/// "Are my passwords touched": what is looked into and what is never moved.
void mergeTouching(Phrases& phrases)
{
    constexpr SenseSet kBeside{privacy, opened, general, subject, unknown, can};
    if (has(phrases, privacy) && has(phrases, opened) &&
        std::ranges::all_of(phrases, [&](const Phrase& each) { return kBeside.has(each.sense); }))
        rename(phrases, opened, reads);
}

} // namespace

void mergeIdioms(Phrases& phrases)
{
    mergeHolding(phrases);
    mergeLeft(phrases);
    mergeTrashing(phrases);
    mergeSuperlatives(phrases);
    mergeTouching(phrases);
}

} // namespace orlen::AskReader
