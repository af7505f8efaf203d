#include "insight/reader/ListConditions.h"

#include "insight/InsightTexts.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <iterator>
#include <utility>

namespace orlen::AskReader {

namespace {

/// The word that compares stands before a size or behind it: "over 1 GB", "1 GB or more".
Sense comparisonAt(const Question& question, std::size_t position)
{
    constexpr SenseSet kComparisons{Sense::above, Sense::below};
    if (position > 0 && kComparisons.has(question.phrases[position - 1].sense))
        return question.phrases[position - 1].sense;
    const bool isLast = position + 1 >= question.phrases.size();
    return isLast ? Sense::unknown : question.phrases[position + 1].sense;
}

/// Whether the word compares the date: no size is there, or it stands right before the date.
bool isComparedBy(const Question& question, Sense comparison)
{
    const std::size_t at = question.position(Sense::period);
    const bool isBeside =
        at > 0 && at < question.phrases.size() && question.phrases[at - 1].sense == comparison;
    return question.senses.has(comparison) && (isBeside || !question.senses.has(Sense::size));
}

/// "More than two years old"
bool isOlderThan(const Question& question)
{
    return isComparedBy(question, Sense::above);
}

bool isYoungerThan(const Question& question)
{
    return isComparedBy(question, Sense::below);
}

} // namespace

void narrow(ListRequest& request, const Text& condition, std::vector<Place> places)
{
    places.push_back({"files", within(std::move(request.files))});
    request.files = {condition, std::move(places)};
}

bool takeSizes(const Question& question, ListRequest& request)
{
    if (question.count(Sense::size) == 2 && question.senses.has(Sense::above) &&
        !question.senses.has(Sense::below)) {
        const auto isSize = [](const Phrase& phrase) { return phrase.sense == Sense::size; };
        const auto first = std::ranges::find_if(question.phrases, isSize);
        const auto second = std::find_if(std::next(first), question.phrases.end(), isSize);
        const auto [least, most] = std::minmax(first->amount, second->amount);
        request.leastBytes = least;
        request.mostBytes = most;
        narrow(request, InsightTexts::kFilesOver, {{"size", Bytes{least}}});
        narrow(request, InsightTexts::kFilesUnder, {{"size", Bytes{most}}});
        return true;
    }
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        const Phrase& phrase = question.phrases[i];
        if (phrase.sense != Sense::size)
            continue;
        const Sense comparison = comparisonAt(question, i);
        if (comparison == Sense::above) {
            request.leastBytes = phrase.amount + 1;
            narrow(request, InsightTexts::kFilesOver, {{"size", Bytes{phrase.amount}}});
        } else if (comparison == Sense::below) {
            request.mostBytes = phrase.amount - 1;
            narrow(request, InsightTexts::kFilesUnder, {{"size", Bytes{phrase.amount}}});
        } else {
            return false;
        }
    }
    return true;
}

bool takeDate(const Question& question, TimePoint now, ListRequest& request)
{
    const Phrase* const phrase = question.first(Sense::period);
    if (phrase == nullptr)
        return !question.senses.meets({Sense::before, Sense::after, Sense::since, Sense::unopened});
    const Period& period = *phrase->period;
    // "Over the summer" is no age.
    if (period.from > now || (period.isAhead && isOlderThan(question)))
        return false;
    // "More than last month" compares something else.
    if ((isOlderThan(question) || isYoungerThan(question)) && !period.next)
        return false;
    // "Not touched since 2024": in that year for the last time, or before it.
    const bool isWholeYear = period.to - period.from >= std::chrono::days(365) && period.to < now;
    const TimePoint bound = question.senses.has(Sense::since) && isWholeYear ? period.to : period.from;
    if (question.senses.has(Sense::unopened)) {
        request.openedTo = bound;
        narrow(request, InsightTexts::kFilesOpenedBefore, {{"date", dayOf(bound)}});
    } else if (question.senses.has(Sense::before) || isOlderThan(question)) {
        request.changedTo = bound;
        narrow(request, InsightTexts::kFilesChangedBefore, {{"date", dayOf(bound)}});
    } else if (question.senses.has(Sense::after)) {
        request.changedFrom = period.to;
        narrow(request, InsightTexts::kFilesChangedSince, {{"date", dayOf(period.to)}});
    } else if (question.senses.has(Sense::since) || isYoungerThan(question)) {
        request.changedFrom = period.from;
        narrow(request, InsightTexts::kFilesChangedSince, {{"date", dayOf(period.from)}});
    } else {
        request.changedFrom = period.from;
        request.changedTo = period.to;
        narrow(request, InsightTexts::kFilesChangedBetween,
               {{"first", dayOf(period.from)}, {"last", dayOf(period.to)}});
    }
    return true;
}

} // namespace orlen::AskReader
