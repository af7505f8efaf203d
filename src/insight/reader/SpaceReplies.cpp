#include "insight/reader/SpaceReplies.h"

#include "insight/AskText.h"
#include "platform/text/ByteCount.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <utility>

namespace orlen::AskReader {

namespace {

/// Slower growth of a category, in bytes per day, is not worth a sentence.
constexpr double kNotableGrowth = 1'000'000;
/// Forecasts further away than this say nothing, in days.
constexpr double kFarAway = 20 * 365.0;

struct Part {
    const Finding* finding = nullptr;
    std::int64_t bytes = 0;
};

std::vector<Part> largestFirst(const AskContext& context,
                               const std::function<std::int64_t(const Finding&)>& size)
{
    std::vector<Part> parts;
    for (const Finding& finding : context.findings) {
        if (const std::int64_t bytes = size(finding); bytes > 0)
            parts.push_back({&finding, bytes});
    }
    std::ranges::stable_sort(parts, std::greater{}, &Part::bytes);
    return parts;
}

std::int64_t usedOf(const StorageBreakdown& breakdown)
{
    return std::max<std::int64_t>(0, checkedSubtract(breakdown.total, breakdown.free));
}

std::string percentUsed(const StorageBreakdown& breakdown)
{
    const double share =
        100.0 * static_cast<double>(usedOf(breakdown)) / static_cast<double>(breakdown.total);
    return std::to_string(std::lround(share)) + " %";
}

std::string volumeText(const StorageBreakdown& breakdown)
{
    return byteCount(breakdown.free) + " is free of " + byteCount(breakdown.total) + "; " +
           byteCount(usedOf(breakdown)) + " is used (" + percentUsed(breakdown) + ").";
}

/// "Media grows the fastest, by about 1.2 GB per day."
std::string growthText(const Prediction& prediction)
{
    if (!prediction.enoughData || prediction.perCategory.empty() ||
        prediction.perCategory.front().second < kNotableGrowth)
        return {};
    const auto& [category, rate] = prediction.perCategory.front();
    return " " + std::string(label(category)) + " grows the fastest, by about " +
           byteCount(checkedInteger(rate)) + " per day.";
}

std::string partList(const std::vector<Part>& parts, std::size_t most, Answer& answer)
{
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < std::min(parts.size(), most); ++i) {
        texts.push_back(AskText::sized(parts[i].finding->title, parts[i].bytes));
        answer.findingIDs.emplace_back(parts[i].finding->id());
    }
    return AskText::joined(texts, ", ");
}

/// Bytes of the entries rated Review.
std::int64_t reviewSize(const Finding& finding)
{
    std::int64_t bytes = 0;
    for (const FileEntry& entry : finding.items) {
        if (finding.cleanable && finding.effectiveRating(entry) == Rating::review)
            bytes = checkedAdd(bytes, entry.size);
    }
    return bytes;
}

std::int64_t sumOf(const std::vector<Part>& parts)
{
    std::int64_t bytes = 0;
    for (const Part& part : parts)
        bytes = checkedAdd(bytes, part.bytes);
    return bytes;
}

/// As many of the parts, largest first, as reach `wanted`.
std::vector<Part> reaching(std::vector<Part> parts, std::int64_t wanted)
{
    std::int64_t bytes = 0;
    std::size_t count = 0;
    while (count < parts.size() && bytes < wanted)
        bytes = checkedAdd(bytes, parts[count++].bytes);
    parts.resize(count);
    return parts;
}

} // namespace

std::optional<Answer> spaceNow(const Question& question, const AskContext& context)
{
    const StorageBreakdown& breakdown = context.breakdown;
    if (breakdown.total <= 0)
        return std::nullopt;
    if (const Phrase* const size = question.first(Sense::size)) {
        const bool isEnough = breakdown.free >= size->amount;
        return Answer{std::string(isEnough ? "Yes. " : "No. ") + volumeText(breakdown), {}};
    }
    return Answer{volumeText(breakdown), {}};
}

std::optional<Answer> whyFull(const Question& /*question*/, const AskContext& context)
{
    const StorageBreakdown& breakdown = context.breakdown;
    if (breakdown.total <= 0)
        return std::nullopt;
    Answer answer;
    answer.text = volumeText(breakdown) + " By category: " + AskText::largestCategories(breakdown) + '.';
    if (context.findings.empty()) {
        answer.text += " Run a Smart Scan to see what could go.";
    } else {
        constexpr std::size_t kNamed = 3;
        const auto parts = largestFirst(context, std::mem_fn(&Finding::totalSize));
        answer.text += " The largest findings are " + partList(parts, kNamed, answer) + '.';
    }
    answer.text += growthText(context.prediction);
    return answer;
}

std::optional<Answer> fullWhen(const Question& question, const AskContext& context)
{
    const Prediction& prediction = context.prediction;
    if (!prediction.daysLeft)
        return Answer{prediction.headline + ". " + prediction.detail, {}};
    if (*prediction.daysLeft > kFarAway)
        return Answer{"Not for more than 20 years at the present pace. " + prediction.detail, {}};
    const auto left = std::chrono::hours(static_cast<int>(*prediction.daysLeft * 24));
    const TimePoint full = context.now + left;
    std::string text;
    if (const Phrase* const period = question.first(Sense::period); period != nullptr) {
        if (period->period->to <= context.now)
            return std::nullopt;
        text = full < period->period->to ? "Probably yes. " : "Probably not. ";
    }
    return Answer{text + "At the present pace your disk will be full around " + longDate(full) + ". " +
                      prediction.detail,
                  {}};
}

std::optional<Answer> roomFor(const Question& question, const AskContext& context)
{
    constexpr std::size_t kNamed = 6;
    const Phrase* const size = question.first(Sense::size);
    if (size == nullptr || size->amount <= 0)
        return std::nullopt;
    // "Do I have 5 GB free?" asks for no proposal.
    if (!question.senses.has(Sense::makeRoom) &&
        question.position(Sense::size) < question.position(Sense::free))
        return std::nullopt;
    if (context.findings.empty())
        return Answer{std::string(AskText::kNoScan), {}};
    const std::string wanted = byteCount(size->amount);
    const auto safe = largestFirst(context, std::mem_fn(&Finding::safeSize));
    const std::int64_t safeBytes = sumOf(safe);
    Answer answer;
    if (safeBytes >= size->amount) {
        const auto chosen = reaching(safe, size->amount);
        answer.text = "To free " + wanted +
                      ", what is rated Safe is enough: " + partList(chosen, kNamed, answer) + ", " +
                      byteCount(sumOf(chosen)) + " in all.";
    } else {
        const auto rest = reaching(largestFirst(context, reviewSize), size->amount - safeBytes);
        answer.text = safeBytes == 0 ? "Nothing is rated Safe."
                                     : "Everything rated Safe frees " + byteCount(safeBytes) + ": " +
                                           partList(safe, kNamed, answer) + '.';
        if (!rest.empty())
            answer.text += " For the rest of " + wanted +
                           ", look through what is rated Review: " + partList(rest, kNamed, answer) + '.';
        if (checkedAdd(safeBytes, sumOf(rest)) < size->amount)
            answer.text += " Together that is less than " + wanted + '.';
    }
    answer.text +=
        " Nothing moves before you have seen the list, and space comes back once you empty the Trash.";
    return answer;
}

} // namespace orlen::AskReader
