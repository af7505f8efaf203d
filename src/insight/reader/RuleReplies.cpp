#include "insight/reader/RuleReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/InsightTextsPrograms.h"
#include "insight/InsightTextsWhatIf.h"
#include "insight/reader/HistoryReplies.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/WhatIfReplies.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

struct Meaning {
    Sense sense;
    Text text;
};

constexpr Meaning kMeanings[] = {
    {Sense::safe, InsightTexts::kSafeMeans},
    {Sense::review, InsightTexts::kReviewMeans},
    {Sense::keep, InsightTexts::kKeepMeans},
};

/// About things of every kind, if about any.
bool isGeneral(const Question& question)
{
    return std::ranges::all_of(question.phrases, [](const Phrase& phrase) {
        return phrase.subject == nullptr || phrase.subject->isAnyFile || phrase.subject->isProgram;
    });
}

} // namespace

std::optional<Answer> privacy(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kPrivacy, {}};
}

std::optional<Answer> howOften(const Question& /*question*/, const AskContext& context)
{
    return Answer{AskText::sentences({InsightTexts::kNoRhythm, lastCleanUpOf(context.history)}), {}};
}

std::optional<Answer> whichRights(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kNoRights, {}};
}

std::optional<Answer> emptyFolders(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kNoEmptyFolders, {}};
}

std::optional<Answer> whatIsNeverTouched(const Question& question, const AskContext& /*context*/)
{
    if (!isGeneral(question))
        return std::nullopt;
    return Answer{InsightTexts::kNeverTouched, {}};
}

std::optional<Answer> whatOrlenAnswers(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kHelp, {}};
}

std::optional<Answer> whyTrust(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{AskText::lines({InsightTexts::kPrivacy, InsightTexts::kNeverTouched}), {}};
}

std::optional<Answer> whatIsNotItsJob(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kNotItsJob, {}};
}

std::optional<Answer> whatItDoesNot(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{AskText::lines({InsightTexts::kNeverTouched, InsightTexts::kPrivacy}), {}};
}

std::optional<Answer> deletesNothing(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kNeverTouched, {}};
}

std::optional<Answer> whenItRuns(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kOnlyWhileOpen, {}};
}

std::optional<Answer> howItIsRemoved(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kOwnRemoval, {}};
}

std::optional<Answer> whatCounts(const Question& question, const AskContext& context)
{
    const Subject& subject = *question.subject();
    if (question.count(Sense::subject) > 1 || subject.isProgram)
        return std::nullopt;
    if (subject.extensions.empty())
        return whatSubjectIs(question, context);
    std::string endings(subject.extensions);
    for (std::size_t at = endings.find(' '); at != std::string::npos; at = endings.find(' ', at + 2))
        endings.replace(at, 1, ", ");
    return Answer{
        Message{InsightTexts::kKindMeans, {{"files", within(subject.name)}, {"endings", std::move(endings)}}},
        {}};
}

std::optional<Answer> whatHappens(const Question& question, const AskContext& context)
{
    const auto isOfKind = [](const Phrase& phrase) {
        const Subject* const subject = phrase.subject;
        return subject != nullptr && subject->id != SubjectID::trash && !subject->isAnyFile &&
               (!subject->isProgram || subject->id == SubjectID::startup);
    };
    if (std::ranges::any_of(question.phrases, isOfKind))
        return std::nullopt;
    // "What if I empty the trash": what would be free then.
    const bool isOfTrash = question.senses.has(Sense::remove) && question.count(Sense::subject) == 1 &&
                           question.subject()->id == SubjectID::trash &&
                           !question.senses.meets({Sense::when, Sense::undo});
    if (std::optional<Answer> emptied = isOfTrash ? freedByThem(question, context) : std::nullopt) {
        emptied->text = AskText::lines({std::move(emptied->text), InsightTexts::kUntilTrashIsEmptied});
        return emptied;
    }
    return Answer{AskText::sentences({InsightTexts::kMovesTicked, InsightTexts::kUntilTrashIsEmptied,
                                      InsightTexts::kNothingMovesYet}),
                  {}};
}

std::optional<Answer> howToExclude(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kHowToExclude, {}};
}

std::optional<Answer> whatToKeep(const Question& question, const AskContext& context)
{
    return isGeneral(question) ? std::optional(AskEngine::fallback("keep", context)) : std::nullopt;
}

std::optional<Answer> whatSystemIs(const Question& question, const AskContext& context)
{
    const Subject* const subject = question.subject();
    if (subject == nullptr || subject->id != SubjectID::system || question.count(Sense::subject) > 1)
        return std::nullopt;
    std::vector<Message> lines;
    if (const auto size = sizeOfSubject(question, context))
        lines.push_back(size->text);
    lines.emplace_back(InsightTexts::kSystemMeans);
    lines.emplace_back(InsightTexts::kSystemAdvice);
    return Answer{AskText::lines(std::move(lines)), {}};
}

std::optional<Answer> meaningOfRatings(const Question& question, const AskContext& /*context*/)
{
    const Subject* const subject = question.subject();
    const bool isSystem = subject != nullptr && subject->category == OrlenCategory::system;
    const bool isAboutRating = subject != nullptr && subject->isAnyFile && question.senses.has(Sense::why);
    if (subject != nullptr && !isSystem && !isAboutRating)
        return std::nullopt;
    std::vector<Message> lines;
    const bool isAny = question.senses.meets({Sense::safe, Sense::review, Sense::keep}) || isSystem;
    for (const Meaning& meaning : kMeanings) {
        if (!isAny || question.senses.has(meaning.sense))
            lines.emplace_back(meaning.text);
    }
    lines.emplace_back(isSystem ? InsightTexts::kSystemMeans : InsightTexts::kRatingsAreSuggestions);
    return Answer{AskText::lines(std::move(lines)), {}};
}

} // namespace orlen::AskReader
