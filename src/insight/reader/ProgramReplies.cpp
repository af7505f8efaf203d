#include "insight/reader/ProgramReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsPrograms.h"
#include "insight/reader/GameReplies.h"
#include "insight/reader/Names.h"
#include "insight/reader/StartupReplies.h"
#include "insight/reader/StoredThings.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/UnusedApps.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kNamedApps = 5;

/// The application's name, or one of the words in it.
bool isNamed(const KnownApp& app, const std::string& wanted)
{
    const std::string name = plainLetters(app.name);
    return name == wanted || (" " + name + " ").find(" " + wanted + " ") != std::string::npos ||
           (wanted.size() > kNamedApps && isOneLetterApart(name, wanted));
}

/// Which applications a question asks for.
struct AppRequest {
    std::size_t count = kNamedApps;
    bool isSmallest = false;
    std::optional<std::int64_t> over;
    std::optional<std::int64_t> under;
    std::optional<KnownApp::Source> source;

    /// Nothing if it asks for what nobody knows, such as when they were installed.
    [[nodiscard]] static std::optional<AppRequest> of(const Question& question)
    {
        if (question.senses.meets({Sense::newest, Sense::oldest, Sense::period, Sense::ordinal, Sense::last,
                                   Sense::since, Sense::except, Sense::negation}))
            return std::nullopt;
        AppRequest request;
        request.isSmallest = question.senses.has(Sense::smallest);
        if (const Phrase* const number = question.first(Sense::number))
            request.count = static_cast<std::size_t>(number->amount);
        if (const Phrase* const size = question.first(Sense::size)) {
            if (question.senses.has(Sense::above) == question.senses.has(Sense::below))
                return std::nullopt;
            (question.senses.has(Sense::above) ? request.over : request.under) = size->amount;
        }
        return request;
    }

    [[nodiscard]] bool admits(const KnownApp& app) const
    {
        // Of what is not installed any more, only data is there.
        const bool isMeant = source ? app.source == *source : app.source != KnownApp::Source::removed;
        return isMeant && (!over || (app.bytes && *app.bytes > *over)) &&
               (!under || (app.bytes && *app.bytes < *under));
    }
};

/// Those that fit, as asked for first; the unmeasured last.
std::vector<KnownApp> fitting(const AppRequest& request, const AskContext& context)
{
    std::vector<KnownApp> apps;
    std::ranges::copy_if(context.apps.value_or(std::vector<KnownApp>()), std::back_inserter(apps),
                         [&](const KnownApp& app) { return request.admits(app); });
    std::ranges::stable_sort(apps, [&](const KnownApp& a, const KnownApp& b) {
        if (!a.bytes || !b.bytes)
            return a.bytes.has_value() && !b.bytes;
        return request.isSmallest ? *a.bytes < *b.bytes : *a.bytes > *b.bytes;
    });
    return apps;
}

Several namesOf(std::span<const KnownApp> apps)
{
    Several list{{}, Several::Joint::commas};
    for (const KnownApp& app : apps) {
        std::string name = PathText::forDisplay(app.name);
        list.messages.push_back(app.bytes ? AskText::sized(std::move(name), *app.bytes)
                                          : Message::verbatim(std::move(name)));
    }
    return list;
}

/// One line about those that fit.
Message listedApps(const AppRequest& request, const AskContext& context)
{
    const std::vector<KnownApp> apps = fitting(request, context);
    const Place size{"size", Bytes{request.over ? *request.over : request.under.value_or(0)}};
    if (apps.empty() && (request.over || request.under))
        return {request.over ? InsightTexts::kNoAppOver : InsightTexts::kNoAppUnder, {size}};
    if (apps.empty())
        return {};
    Several names = namesOf(std::span(apps).first(std::min(apps.size(), request.count)));
    if (request.over || request.under)
        return {request.over ? InsightTexts::kAppsOver : InsightTexts::kAppsUnder,
                {{"count", std::ssize(apps)}, size, {"apps", std::move(names)}}};
    return {request.isSmallest ? InsightTexts::kSmallestApps : InsightTexts::kBiggestApps,
            {{"apps", std::move(names)}}};
}

/// How many there are, and what they take together if all are measured.
Message countOf(const std::vector<KnownApp>& apps)
{
    const Place count{"count", std::ssize(apps)};
    std::int64_t bytes = 0;
    for (const KnownApp& app : apps)
        bytes = checkedAdd(bytes, app.bytes.value_or(0));
    const bool isMeasured =
        std::ranges::all_of(apps, [](const KnownApp& app) { return app.bytes.has_value(); });
    if (apps.empty() || !isMeasured)
        return {InsightTexts::kAppsListed, {count}};
    return {InsightTexts::kAppsWithTotal, {count, {"size", Bytes{bytes}}}};
}

std::optional<Answer> apps(const Question& question, const AskContext& context)
{
    std::vector<Message> lines;
    if (question.senses.has(Sense::unopened)) {
        lines = unusedApps(question, context);
    } else {
        const auto request = AppRequest::of(question);
        if (!request)
            return std::nullopt;
        const bool isListed = request->over || request->under || request->isSmallest;
        if (context.apps && !isListed)
            lines.push_back(countOf(fitting({}, context)));
        if (const auto size = sizeOfSubject(question, context); size && !isListed)
            lines.push_back(size->text);
        lines.push_back(listedApps(*request, context));
    }
    lines.emplace_back(question.senses.meets({Sense::remove, Sense::uninstall}) ? InsightTexts::kAppRemoval
                                                                                : InsightTexts::kAppsScreen);
    return Answer{AskText::lines(std::move(lines)), {}};
}

/// Those that came with Flatpak or as Snaps, and what they take.
std::optional<Answer> packaged(const Question& question, const AskContext& context, KnownApp::Source source,
                               const Text& how)
{
    auto request = AppRequest::of(question);
    if (!request)
        return std::nullopt;
    request->source = source;
    request->count = std::max<std::size_t>(request->count, kNamedApps * 2);
    const bool isFlatpak = source == KnownApp::Source::flatpak;
    const Place files{"files", within(isFlatpak ? InsightTexts::kFlatpakApps : InsightTexts::kSnapApps)};
    const std::vector<KnownApp> apps = fitting(*request, context);
    std::vector<Message> lines;
    if (!apps.empty() && !request->over && !request->under) {
        std::int64_t bytes = 0;
        for (const KnownApp& app : apps)
            bytes = checkedAdd(bytes, app.bytes.value_or(0));
        lines.push_back(
            {InsightTexts::kFilesThere, {files, {"count", std::ssize(apps)}, {"size", Bytes{bytes}}}});
    }
    if (!apps.empty() || request->over || request->under) {
        lines.push_back(listedApps(*request, context));
    } else {
        // What they keep may still be there.
        if (context.apps)
            lines.push_back({InsightTexts::kNoFilesThere, {files}});
        const std::string_view place = isFlatpak ? "{H}/.var/app" : "{H}/snap";
        lines.push_back(foldersIn(place, request->isSmallest ? Sizes::smallest : Sizes::biggest, context));
        if (context.leftovers && std::ranges::any_of(*context.leftovers, [&](const FileEntry& entry) {
                return PathText::isAtOrBelow(entry.path, Places::current().expand(place).front());
            }))
            lines.emplace_back(InsightTexts::kLeftoversScreen);
    }
    lines.push_back(how);
    return Answer{AskText::lines(std::move(lines)), {}};
}

Answer leftovers(const AskContext& context)
{
    if (!context.leftovers)
        return {InsightTexts::kLeftoversScreen, {}};
    if (context.leftovers->empty())
        return {AskText::sentences({InsightTexts::kNoLeftovers, InsightTexts::kLeftoversScreen}), {}};
    constexpr std::size_t kShown = 10;
    std::int64_t bytes = 0;
    std::vector<Message> lines(1);
    for (const FileEntry& entry : *context.leftovers) {
        bytes = checkedAdd(bytes, entry.size);
        if (lines.size() <= kShown)
            lines.push_back(
                {InsightTexts::kDownload, {{"name", tilde(entry.path)}, {"size", Bytes{entry.size}}}});
    }
    lines.front() = {InsightTexts::kLeftovers,
                     {{"count", std::ssize(*context.leftovers)}, {"size", Bytes{bytes}}}};
    lines.emplace_back(InsightTexts::kLeftoversScreen);
    return {AskText::lines(std::move(lines)), {}};
}

Answer described(const KnownApp& app, Told told)
{
    const Place name{"name", PathText::forDisplay(app.name)};
    const Message size = app.bytes ? Message{InsightTexts::kAppTakes, {name, {"size", Bytes{*app.bytes}}}}
                                   : Message{InsightTexts::kAppUnmeasured, {name}};
    const Message removal = told == Told::size   ? Message()
                            : app.advice.empty() ? Message{InsightTexts::kAppRemoval}
                                                 : app.advice;
    const Message use = app.lastUse && app.isUseNoted
                            ? Message{InsightTexts::kAppUsedOn, {{"date", dayOf(*app.lastUse)}}}
                            : Message();
    return {AskText::sentences({size, use, removal}), {}};
}

} // namespace

std::optional<Answer> aboutPrograms(const Question& question, const AskContext& context)
{
    const auto isProgram = [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->isProgram;
    };
    const auto isLeftovers = [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->id == SubjectID::leftovers;
    };
    if (std::ranges::any_of(question.phrases, isLeftovers))
        return leftovers(context);
    const auto isAdvice = [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->id == SubjectID::systemAdvice;
    };
    if (std::ranges::any_of(question.phrases, isAdvice))
        return Answer{InsightTexts::kSystemAdvice, {}};
    const auto found = std::ranges::find_if(question.phrases, isProgram);
    if (found == question.phrases.end())
        return std::nullopt;
    // "The Steam folder" and "apps in Downloads" are questions about files.
    if (question.senses.meets({Sense::inside}) && question.count(Sense::subject) > 1)
        return std::nullopt;
    switch (found->subject->id) {
    case SubjectID::startup:
        return startup(context);
    case SubjectID::containers:
        return containers(context);
    case SubjectID::flatpak:
        return packaged(question, context, KnownApp::Source::flatpak, InsightTexts::kFlatpaks);
    case SubjectID::snap:
        return packaged(question, context, KnownApp::Source::snap, InsightTexts::kSnaps);
    case SubjectID::games:
        return games(question, context);
    case SubjectID::leftovers:
        return leftovers(context);
    case SubjectID::virtualMachines:
    case SubjectID::wine:
    case SubjectID::buildOutput:
    case SubjectID::environments:
        return listOfStored(question, *found->subject, context);
    default:
        // Any other program is one of the applications.
        return question.count(Sense::subject) > 1 ? std::nullopt : apps(question, context);
    }
}

std::optional<Answer> isInstalled(const Question& question, const AskContext& context)
{
    const Phrase* const unknown = question.first(Sense::unknown);
    const Phrase* const named = unknown != nullptr ? unknown : question.first(Sense::quoted);
    if (named == nullptr || !context.apps || question.count(Sense::unknown) > 1)
        return std::nullopt;
    const Place name{"name", PathText::forDisplay(named->text)};
    if (const KnownApp* const app = appCalled(context, named->text);
        app != nullptr && app->source == KnownApp::Source::removed)
        return Answer{AskText::sentences({Message{InsightTexts::kInstalledNoMore,
                                                  {name, {"size", Bytes{app->bytes.value_or(0)}}}},
                                          InsightTexts::kLeftoversScreen}),
                      {}};
    if (const auto app = aboutApp(context, named->text))
        return Answer{AskText::sentences({Message{InsightTexts::kInstalled, {name}}, app->text}), {}};
    return Answer{Message{InsightTexts::kAppUnknown, {name}}, {}};
}

const KnownApp* appCalled(const AskContext& context, std::string_view name)
{
    if (!context.apps)
        return nullptr;
    const std::string wanted = plainLetters(name);
    const auto found =
        std::ranges::find_if(*context.apps, [&](const KnownApp& app) { return isNamed(app, wanted); });
    return found == context.apps->end() ? nullptr : &*found;
}

Told toldOf(const Question& question)
{
    constexpr SenseSet kOfSize{Sense::howBig, Sense::howMuch, Sense::takes, Sense::space};
    constexpr SenseSet kOfRemoval{Sense::remove, Sense::uninstall, Sense::safe,    Sense::keep,
                                  Sense::can,    Sense::makeRoom,  Sense::cleanUp, Sense::what};
    return question.senses.meets(kOfSize) && !question.senses.meets(kOfRemoval) ? Told::size : Told::removal;
}

std::optional<Answer> aboutApp(const AskContext& context, std::string_view name, Told told)
{
    const KnownApp* const found = appCalled(context, name);
    return found == nullptr ? std::nullopt : std::optional(described(*found, told));
}

std::optional<Answer> uninstalling(const Question& question, const AskContext& context)
{
    std::string name;
    for (const Phrase& phrase : question.phrases) {
        const bool isFigure = phrase.sense == Sense::number && !name.empty(); // "Portal 2"
        if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted || isFigure)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    if (name.empty())
        return Answer{InsightTexts::kAppRemoval, {}};
    if (std::optional<Answer> app = aboutApp(context, name))
        return app;
    if (std::optional<Answer> game = removingGame(question, context))
        return game;
    if (!context.apps)
        return Answer{AskText::sentences({InsightTexts::kAppsScreen, InsightTexts::kAppRemoval}), {}};
    return Answer{Message{InsightTexts::kAppUnknown, {{"name", PathText::forDisplay(name)}}}, {}};
}

} // namespace orlen::AskReader
