#include "insight/reader/ForecastReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsWhatIf.h"
#include "platform/values/CheckedSum.h"

#include <chrono>
#include <cstdint>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// Slower growth of a category, in bytes per day, is not worth a sentence.
constexpr double kNotableGrowth = 1'000'000;
/// Forecasts further away than this say nothing, in days.
constexpr double kFarAway = 20 * 365.0;

/// The moment by which the question wants to know: "until July" ends where July begins.
TimePoint deadlineIn(const Question& question, const Period& period, TimePoint now)
{
    const Period next = coming(period);
    if (!question.senses.has(Sense::before))
        return next.to;
    if (next.from > now)
        return next.from;
    // "Until summer" in the middle of one.
    return period.next && next.to > now ? back(next.from, TimeUnit::year, -1) : next.to;
}

/// Yes or no; empty if the question asks for something else.
Message verdict(const Question& question, bool isFullByThen)
{
    constexpr SenseSet kNoYesNo{Sense::when,    Sense::howMuch, Sense::howBig,
                                Sense::howMany, Sense::used,    Sense::negation};
    if (question.senses.meets(kNoYesNo))
        return {};
    const bool isYes = question.senses.has(Sense::full) ? isFullByThen : !isFullByThen;
    return isYes ? InsightTexts::kProbablyYes : InsightTexts::kProbablyNot;
}

} // namespace

Message fastestGrowth(const Prediction& prediction)
{
    if (!prediction.enoughData || prediction.perCategory.empty() ||
        prediction.perCategory.front().second < kNotableGrowth)
        return {};
    const auto& [category, rate] = prediction.perCategory.front();
    return {InsightTexts::kGrowsFastest,
            {{"category", within(label(category))}, {"size", Bytes{checkedInteger(rate)}}}};
}

std::optional<Answer> fullWhen(const Question& question, const AskContext& context)
{
    const Prediction& prediction = context.prediction;
    if (!prediction.daysLeft)
        return Answer{AskText::forecast(prediction), {}};
    if (*prediction.daysLeft > kFarAway)
        return Answer{AskText::sentences({InsightTexts::kNotForLong, prediction.detail}), {}};
    const auto left = std::chrono::hours(static_cast<int>(*prediction.daysLeft * 24));
    const TimePoint full = context.now + left;
    std::vector<Message> said;
    if (const Phrase* const phrase = question.first(Sense::period); phrase != nullptr) {
        const TimePoint deadline = deadlineIn(question, *phrase->period, context.now);
        if (deadline <= context.now)
            return std::nullopt;
        // "Are 20 GB enough until then?"
        if (const Phrase* const size = question.first(Sense::size); size != nullptr) {
            const double perDay = static_cast<double>(context.breakdown.free) / *prediction.daysLeft;
            const double days =
                std::chrono::duration<double, std::chrono::days::period>(deadline - context.now).count();
            const std::int64_t needed = checkedInteger(perDay * days);
            return Answer{
                AskText::sentences({verdict(question, needed > size->amount),
                                    Message{InsightTexts::kFilledUntil,
                                            {{"date", Moment{deadline}}, {"size", Bytes{needed}}}}}),
                {}};
        }
        said.push_back(verdict(question, full < deadline));
    }
    said.push_back({InsightTexts::kFullAround, {{"date", Moment{full}}}});
    said.push_back(prediction.detail);
    return Answer{AskText::sentences(std::move(said)), {}};
}

std::optional<Answer> roomLater(const Question& question, const AskContext& context)
{
    const Period& period = *question.first(Sense::period)->period;
    const bool isLater =
        period.isAhead || period.from > context.now || (period.next && question.senses.has(Sense::before));
    return isLater ? fullWhen(question, context) : std::nullopt;
}

std::optional<Answer> paceOfGrowth(const Question& question, const AskContext& context)
{
    if (!question.hasNoKind())
        return std::nullopt;
    return Answer{
        AskText::sentences({AskText::forecast(context.prediction), fastestGrowth(context.prediction)}), {}};
}

} // namespace orlen::AskReader
