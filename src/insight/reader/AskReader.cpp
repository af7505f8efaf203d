#include "insight/reader/AskReader.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/GrowthReplies.h"
#include "insight/reader/HistoryReplies.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/NameReplies.h"
#include "insight/reader/Names.h"
#include "insight/reader/RuleReplies.h"
#include "insight/reader/SpaceReplies.h"
#include "insight/reader/SubjectReplies.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace orlen::AskReader {

namespace {

using enum Sense;
using Responder = std::optional<Answer> (*)(const Question&, const AskContext&);

/// A reply and the questions it is for.
struct Rule {
    std::vector<SenseSet> needs; ///< one sense of each set
    SenseSet allows;             ///< may stand beside them; any other sense, and the rule is not for it
    Responder reply;
};

constexpr SenseSet kAsking{what, can, when, general, howMany, howMuch};
constexpr SenseSet kSpaceWords{disk, space, total, used, free};
constexpr SenseSet kSorting{biggest, smallest, oldest, newest};
constexpr SenseSet kComparing{above, below, before, after, since, unopened};
constexpr SenseSet kListWords{what, howMany, subject, size, number, period, inside,
                              disk, unknown, quoted,  last, can,    remove, space};

/// In this order; the first whose senses fit and that has an answer gives it.
const std::vector<Rule>& rules()
{
    static const std::vector<Rule> inOrder{
        {{{privacy}}, {what, can, disk, subject, safe, keep, general, when, why}, AskReader::privacy},
        {{{untouched}}, {what, subject, can, remove, disk, inside, keep, general}, whatIsNeverTouched},
        {{{mean}, {safe, review, keep, subject}}, {what, mean, can}, meaningOfRatings},
        {{{what}, {review, keep}}, {safe, mean}, meaningOfRatings},
        {{{mean}}, {what, why, general}, meaningOfRatings},
        {{{undo}}, {cleanUp, last, can, what, subject, remove, inside, when, general}, howToUndo},
        {{{cleanUp, remove, free, makeRoom}, {soFar}}, kAsking.with({cleanUp, space, remove}), allCleanUps},
        {{{cleanUp}, {howMany}}, {what, can, general, last}, allCleanUps},
        {{{cleanUp}, {last}},
         {what, when, howMuch, howBig, free, remove, makeRoom, general, space},
         lastCleanUp},
        {{{cleanUp}, {when}}, {general, last}, lastCleanUp},
        {{{what}, {grow}}, kSpaceWords.with({grow, last, since, after, period, inside, general}), whatGrew},
        {{{why}, {full, used, space, free}},
         kSpaceWords.with({full, what, general, above, below, biggest}),
         whyFull},
        {{{full}, {when, period}}, kSpaceWords.with({what, can, before, general}), fullWhen},
        {{{what}, {full}, {disk, space}}, {general}, whyFull},
        {{{makeRoom, free}, {size}}, kSpaceWords.with({makeRoom, what, can, remove, general}), roomFor},
        {{{howMuch}, {free, makeRoom, remove}, {subject}},
         {space, can, remove, general, disk, howBig},
         freedBySubject},
        {{{free}}, kSpaceWords.with({howMuch, howBig, what, general, size}), spaceNow},
        {{{used, total}}, kSpaceWords.with({howMuch, howBig, what, full, general}), spaceNow},
        {{{howBig, howMuch}, {disk}}, kSpaceWords.with({what}), spaceNow},
        {{kSorting, {subject, number, inside, size}},
         kSorting.with(kComparing).with(kListWords),
         listOfFiles},
        {{kComparing, {size, period}}, kSorting.with(kComparing).with(kListWords), listOfFiles},
        {{{subject}, {inside}, {subject, unknown, period}}, {what}, listOfFiles},
        {{{howBig, howMuch, howMany}, {subject}},
         {what, space, used, total, disk, general, inside},
         sizeOfSubject},
        {{{subject}, {can, remove, safe}}, {what, can, remove, safe, inside, review, keep}, removingSubject},
        {{{what}, {subject}}, {}, whatSubjectIs},
        {{{subject}}, {what}, onePhotoKind},
        {{{unknown, quoted}, {what, howBig, howMuch, can, remove, safe, why, keep, undo}},
         {unknown, quoted,  what,  howBig, howMuch, can,     remove, safe,   why,    keep,    review,   mean,
          undo,    subject, space, used,   inside,  general, disk,   number, period, cleanUp, makeRoom, free},
         aboutName},
    };
    return inOrder;
}

bool isFor(const Rule& rule, SenseSet senses)
{
    SenseSet known = rule.allows;
    for (const SenseSet need : rule.needs) {
        if (!senses.meets(need))
            return false;
        known = known.with(need);
    }
    return senses.isWithin(known);
}

std::optional<Answer> firstReply(const Question& question, const AskContext& context)
{
    for (const Rule& rule : rules()) {
        if (!isFor(rule, question.senses))
            continue;
        if (std::optional<Answer> found = rule.reply(question, context))
            return found;
    }
    return std::nullopt;
}

/// Longer texts are no questions, and not worth the time.
constexpr std::size_t kLongestQuestion = 500;

bool isSuggested(std::string_view text)
{
    const std::string plain = AskText::plainWords(text);
    return std::ranges::any_of(AskEngine::kSuggestions,
                               [&](const Text& each) { return AskText::plainWords(each.base()) == plain; });
}

/// The matcher would answer with the general figure of some word in it.
bool isAboutSomethingElse(const Question& question)
{
    return question.senses.meets({unknown, quoted}) && !question.senses.has(subject);
}

} // namespace

std::optional<Answer> answer(std::string_view text, const AskContext& context)
{
    if (text.size() > kLongestQuestion || !PathText::isValidUtf8(text) || isSuggested(text))
        return std::nullopt;
    const auto isKnownName = [&](std::string_view each) { return isWordOfName(context, each); };
    Question question = read(text, context.now, isKnownName);
    std::optional<Answer> found = firstReply(question, context);
    if (!found && question.isCorrected) {
        // What looked like a typing error may have been meant as it stands.
        question = read(text, context.now, [](std::string_view) { return true; });
        found = firstReply(question, context);
    }
    if (!found && isAboutSomethingElse(question))
        return Answer{InsightTexts::kDontKnow, {}};
    return found;
}

} // namespace orlen::AskReader
