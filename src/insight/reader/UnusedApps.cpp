#include "insight/reader/UnusedApps.h"
#include "insight/reader/GameReplies.h"

#include "insight/InsightTexts.h"
#include "insight/InsightTextsPrograms.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/ProgramReplies.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>

namespace orlen::AskReader {

namespace {

/// Longer ago, an application counts as unused if the question names no date.
constexpr std::chrono::days kHalfAYear{182};
constexpr std::size_t kListedApps = 10;

TimePoint neededUse(const Question& question, TimePoint now)
{
    const Phrase* const phrase = question.first(Sense::period);
    return phrase != nullptr && phrase->period ? phrase->period->from : now - kHalfAYear;
}

Message withLastUse(const KnownApp& app)
{
    const Place name{"name", PathText::forDisplay(app.name)};
    if (!app.bytes)
        return Message::verbatim(PathText::forDisplay(app.name));
    return {app.isUseNoted ? InsightTexts::kAppLastUsed : InsightTexts::kAppLastRead,
            {name, {"size", Bytes{*app.bytes}}, {"date", dayOf(*app.lastUse)}}};
}

Message unusedLine(std::span<const KnownApp> unused, TimePoint from)
{
    Several list{{}, Several::Joint::commas};
    std::ranges::transform(unused.first(std::min(unused.size(), kListedApps)),
                           std::back_inserter(list.messages), withLastUse);
    return {InsightTexts::kUnusedApps,
            {{"count", std::ssize(unused)}, {"date", dayOf(from)}, {"apps", std::move(list)}}};
}

} // namespace

std::vector<Message> unusedApps(const Question& question, const AskContext& context)
{
    std::vector<KnownApp> known;
    std::ranges::copy_if(context.apps.value_or(std::vector<KnownApp>()), std::back_inserter(known),
                         [](const KnownApp& app) { return app.lastUse.has_value(); });
    if (known.empty())
        return {context.apps ? InsightTexts::kUseNotNoted : InsightTexts::kUseIsUnknown};
    const auto others = std::ssize(*context.apps) - std::ssize(known);
    const TimePoint from = neededUse(question, context.now);
    std::erase_if(known, [&](const KnownApp& app) { return *app.lastUse >= from; });
    std::ranges::stable_sort(known, {}, &KnownApp::lastUse);
    std::vector<Message> lines;
    if (known.empty())
        lines.push_back({InsightTexts::kAllAppsUsed, {{"date", dayOf(from)}}});
    else
        lines.push_back(unusedLine(known, from));
    if (known.size() > kListedApps)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(known.size() - kListedApps)}}});
    if (others > 0)
        lines.push_back({InsightTexts::kOtherUseIsUnknown, {{"count", others}}});
    return lines;
}

std::optional<Answer> lastUseOf(const Question& question, const AskContext& context)
{
    const std::string name = nameIn(question).name;
    const KnownApp* const app = name.empty() ? nullptr : appCalled(context, name);
    // "The last time I opened" may be of a file.
    const Phrase* const use = question.first(Sense::lastUse);
    const bool mayBeFile = use == nullptr || use->text.find("open") != std::string::npos ||
                           question.senses.has(Sense::quoted) || name.empty();
    if (app == nullptr && (mayBeFile || !context.apps))
        return std::nullopt;
    if (app == nullptr) {
        if (std::optional<Answer> game = lastReadOfGame(question, context))
            return game;
    }
    const Place place{"name", PathText::forDisplay(app == nullptr ? name : app->name)};
    if (app == nullptr || !app->lastUse)
        return Answer{Message{InsightTexts::kItsUseNotNoted, {place}}, {}};
    const Place date{"date", dayOf(*app->lastUse)};
    if (app->isUseNoted)
        return Answer{Message{InsightTexts::kAppUsedOn, {date}}, {}};
    const Message read{InsightTexts::kAppLastRead, {place, {"size", Bytes{app->bytes.value_or(0)}}, date}};
    return Answer{app->bytes ? read : Message{InsightTexts::kItsUseNotNoted, {place}}, {}};
}

} // namespace orlen::AskReader
