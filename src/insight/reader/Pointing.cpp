#include "insight/reader/Pointing.h"

#include "insight/reader/Lexicon.h"

#include <algorithm>
#include <string_view>

namespace orlen::AskReader {

namespace {

using enum Sense;

/// "What does 'Review' mean", and not "which of them are rated Review": needs nothing said before.
bool isDefinition(const Question& question)
{
    constexpr SenseSet kOfRatings{mean, what, why, can, general, safe, review, keep, subject};
    constexpr std::string_view kRated[] = {"rated",  "mark",       "label",   "flag",   "classif", "tagg",
                                           "bewert", "einge",      "gekennz", "marqu",  "marcad",  "clasif",
                                           "calif",  "contrasseg", "valutat", "segnat", "markier", "classe"};
    const Phrase* const meaning = question.first(mean);
    return meaning != nullptr && question.senses.isWithin(kOfRatings) &&
           std::ranges::none_of(
               kRated, [&](std::string_view stem) { return plainLetters(meaning->text).starts_with(stem); });
}

/// "Which can I delete": of what was listed.
bool isElliptic(const Question& question)
{
    return question.senses.isWithin({what, can, remove, safe, keep, general}) &&
           question.senses.meets({remove, safe, keep});
}

} // namespace

bool isOnlyOfThem(const Question& question)
{
    constexpr SenseSet kDoing{howMuch, howBig, makeRoom, free,  space,  remove,
                              can,     safe,   keep,     takes, general};
    return question.isBackward && question.senses.isWithin(kDoing) && question.senses.meets({remove, safe});
}

bool pointsBack(const Question& question)
{
    constexpr SenseSet kNothingAlone{why,    what, ordinal, last, number, general,
                                     inside, keep, safe,    how,  can,    howBig};
    constexpr SenseSet kConditions{size,         above,    below,   period,   Sense::before,
                                   Sense::after, since,    biggest, oldest,   newest,
                                   number,       smallest, inside,  unopened, except};
    constexpr SenseSet kRemovingIt{can, remove, safe, uninstall, keep, negation};
    const bool isPlace = question.phrases.size() == 2 && question.phrases.front().sense == inside &&
                         question.phrases.back().subject != nullptr;
    if (isDefinition(question))
        return false;
    return question.isContinued || isPlace || isElliptic(question) || question.senses.isWithin(kConditions) ||
           (question.senses.isWithin(kRemovingIt) && question.senses.meets({remove, safe})) ||
           (question.isBackward && !question.senses.meets({subject, unknown, quoted})) ||
           question.senses.isWithin(kNothingAlone);
}

bool asksForMore(const Question& question)
{
    const bool saysMore = std::ranges::any_of(question.phrases, [&](const Phrase& phrase) {
        const bool isNext = phrase.sense == ordinal && phrase.amount == 0 && question.senses.has(number);
        // "Cinco más" is no superlative.
        const bool mayBeMore = phrase.sense == general || phrase.sense == most;
        return isNext || (mayBeMore && question.lexicon->meansOthers(phrase.text));
    });
    return question.senses.isWithin({what, number, general, most, ordinal}) &&
           (saysMore || (question.goesOn && question.senses.has(number)));
}

} // namespace orlen::AskReader
