#include "insight/reader/RuleReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"

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

} // namespace

std::optional<Answer> privacy(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kPrivacy, {}};
}

std::optional<Answer> whatIsNeverTouched(const Question& /*question*/, const AskContext& /*context*/)
{
    return Answer{InsightTexts::kNeverTouched, {}};
}

std::optional<Answer> meaningOfRatings(const Question& question, const AskContext& /*context*/)
{
    const Subject* const subject = question.subject();
    const bool isSystem = subject != nullptr && subject->category == OrlenCategory::system;
    if (subject != nullptr && !isSystem)
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
