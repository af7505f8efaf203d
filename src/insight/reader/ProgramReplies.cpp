#include "insight/reader/ProgramReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/UnusedApps.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
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

/// Of an application that is gone, only what it left behind has its name.
bool isPresent(const KnownApp& app, const AskContext& context)
{
    const std::string name = plainLetters(app.name);
    return !context.leftovers || std::ranges::none_of(*context.leftovers, [&](const FileEntry& entry) {
        const std::string left = plainLetters(PathText::lastComponent(entry.path));
        return left == name || left.ends_with("." + name);
    });
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
        return (!source || app.source == *source) && (!over || (app.bytes && *app.bytes > *over)) &&
               (!under || (app.bytes && *app.bytes < *under));
    }
};

/// Those that fit, as asked for first; the unmeasured last.
std::vector<KnownApp> fitting(const AppRequest& request, const AskContext& context)
{
    std::vector<KnownApp> apps;
    std::ranges::copy_if(context.apps.value_or(std::vector<KnownApp>()), std::back_inserter(apps),
                         [&](const KnownApp& app) { return request.admits(app) && isPresent(app, context); });
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
            lines.push_back({InsightTexts::kAppsListed,
                             {{"count", std::ranges::count_if(*context.apps, [&](const KnownApp& app) {
                                   return isPresent(app, context);
                               })}}});
        if (const auto size = sizeOfSubject(question, context); size && !isListed)
            lines.push_back(size->text);
        lines.push_back(listedApps(*request, context));
    }
    lines.emplace_back(question.senses.meets({Sense::remove, Sense::uninstall}) ? InsightTexts::kAppRemoval
                                                                                : InsightTexts::kAppsScreen);
    return Answer{AskText::lines(std::move(lines)), {}};
}

Message startupLine(const AskContext& context, bool isEnabled, const Text& text)
{
    Several names{{}, Several::Joint::commas};
    for (const KnownStartupItem& item : context.startupItems.value_or(std::vector<KnownStartupItem>())) {
        if (item.isEnabled == isEnabled)
            names.messages.push_back(Message::verbatim(PathText::forDisplay(item.name)));
    }
    if (names.messages.empty())
        return {};
    return {text, {{"count", std::ssize(names.messages)}, {"names", std::move(names)}}};
}

Answer startup(const AskContext& context)
{
    return {AskText::lines({startupLine(context, true, InsightTexts::kStartingItems),
                            startupLine(context, false, InsightTexts::kStoppedItems),
                            InsightTexts::kStartupScreen}),
            {}};
}

/// The folders in one, with their sizes.
Message storedIn(std::string_view pattern, const AskContext& context)
{
    const std::vector<std::string> paths = Places::current().expand(pattern);
    const auto folder =
        context.home == nullptr || paths.empty() ? std::nullopt : context.home->folderAt(paths.front());
    if (!folder)
        return {};
    const HomeFiles& home = *context.home;
    std::vector<Message> lines;
    const HomeFiles::Number last = home.foldersFrom(*folder).last;
    for (HomeFiles::Number each = *folder + 1; each < last; each = home.foldersFrom(each).last)
        lines.push_back({InsightTexts::kDownload,
                         {{"name", tilde(home.folderPath(each))}, {"size", Bytes{home.folder(each).bytes}}}});
    return AskText::lines(std::move(lines));
}

std::optional<Answer> packaged(const Question& question, const AskContext& context, KnownApp::Source source,
                               const Text& how)
{
    auto request = AppRequest::of(question);
    if (!request)
        return std::nullopt;
    request->source = source;
    request->count = std::max<std::size_t>(request->count, kNamedApps * 2);
    const Message listed = listedApps(*request, context);
    const bool isFlatpak = source == KnownApp::Source::flatpak;
    const std::string_view stored = isFlatpak ? "{H}/.var/app" : "{H}/snap";
    return Answer{AskText::lines({listed.empty() ? storedIn(stored, context) : listed, how}), {}};
}

/// What Steam takes with all it has: its folders. Of its games, those in its libraries.
Answer steam(const Question& question, const AskContext& context)
{
    const bool areGames = std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
        return phrase.subject != nullptr && plainLetters(phrase.text) != "steam";
    });
    const HomeFiles& home = *context.home;
    Answer answer;
    std::vector<CategoryFolder> each;
    std::int64_t bytes = 0;
    const auto add = [&](HomeFiles::Number number) {
        each.push_back({OrlenCategory::apps, home.folderPath(number), home.folder(number).bytes, {}});
        bytes = checkedAdd(bytes, home.folder(number).bytes);
    };
    for (const std::string& folder :
         Places::current().expand(areGames ? "{STEAM}/steamapps/common" : "{STEAM}")) {
        const auto at = home.folderAt(folder);
        if (!at)
            continue;
        if (!areGames) {
            add(*at);
            continue;
        }
        const HomeFiles::Number last = home.foldersFrom(*at).last;
        for (HomeFiles::Number game = *at + 1; game < last; game = home.foldersFrom(game).last)
            add(game);
    }
    std::ranges::stable_sort(each, std::greater{}, &CategoryFolder::bytes);
    std::vector<Message> lines;
    if (each.size() != 1)
        lines.push_back(each.empty() ? Message{InsightTexts::kNoFilesThere,
                                               {{"files", within(Message::verbatim("Steam"))}}}
                                     : Message{InsightTexts::kFilesThere,
                                               {{"files", within(InsightTexts::kFolders)},
                                                {"count", std::ssize(each)},
                                                {"size", Bytes{bytes}}}});
    constexpr std::size_t kShown = 10;
    for (const CategoryFolder& one : std::span(each).first(std::min(each.size(), kShown))) {
        const Text text = each.size() == 1 ? InsightTexts::kFolderTakes : InsightTexts::kDownload;
        lines.push_back(
            {text, {{each.size() == 1 ? "folder" : "name", tilde(one.path)}, {"size", Bytes{one.bytes}}}});
        answer.paths.push_back(one.path);
    }
    if (each.size() > kShown)
        lines.push_back({InsightTexts::kMoreFit, {{"count", std::ssize(each) - std::ssize(lines) + 1}}});
    lines.emplace_back(InsightTexts::kGames);
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

/// What the folders of games take.
std::optional<Answer> games(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOther{Sense::newest, Sense::oldest, Sense::period, Sense::unopened, Sense::size};
    if (question.senses.meets(kOther))
        return std::nullopt;
    const bool isSteam = std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
        return phrase.subject != nullptr && plainLetters(phrase.text).find("steam") != std::string::npos;
    });
    if (isSteam && context.home != nullptr)
        return steam(question, context);
    std::vector<Message> lines;
    for (const CategoryFolder& folder : context.breakdown.folders) {
        constexpr std::string_view kOfGames[] = {"Steam", "steam", "Games", "lutris", "bottles"};
        const std::string_view name = PathText::lastComponent(folder.path);
        if (folder.category == OrlenCategory::apps && std::ranges::find(kOfGames, name) != std::end(kOfGames))
            lines.push_back({InsightTexts::kFolderTakes,
                             {{"folder", tilde(folder.path)},
                              {"size", Bytes{folderSize(context, folder.path).value_or(folder.bytes)}}}});
    }
    lines.emplace_back(InsightTexts::kGames);
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

Answer described(const KnownApp& app)
{
    const Place name{"name", PathText::forDisplay(app.name)};
    const Message size = app.bytes ? Message{InsightTexts::kAppTakes, {name, {"size", Bytes{*app.bytes}}}}
                                   : Message{InsightTexts::kAppUnmeasured, {name}};
    const Message removal = app.advice.empty() ? Message{InsightTexts::kAppRemoval} : app.advice;
    return {AskText::sentences({size, removal}), {}};
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
        return Answer{InsightTexts::kContainers, {}};
    case SubjectID::flatpak:
        return packaged(question, context, KnownApp::Source::flatpak, InsightTexts::kFlatpaks);
    case SubjectID::snap:
        return packaged(question, context, KnownApp::Source::snap, InsightTexts::kSnaps);
    case SubjectID::games:
        return games(question, context);
    case SubjectID::leftovers:
        return leftovers(context);
    default:
        // Any other program is one of the applications.
        return question.count(Sense::subject) > 1 ? std::nullopt : apps(question, context);
    }
}

std::optional<Answer> startupOf(const Question& question, const AskContext& context)
{
    const Subject* const subject = question.subject();
    if (subject == nullptr || subject->id != SubjectID::startup || !context.startupItems)
        return std::nullopt;
    const auto isItem = [&](const Phrase& phrase) {
        const std::string wanted = " " + plainLetters(phrase.text) + " ";
        return (phrase.sense != Sense::unknown && phrase.sense != Sense::quoted) ||
               std::ranges::any_of(*context.startupItems, [&](const KnownStartupItem& item) {
                   return (" " + plainLetters(item.name) + " ").find(wanted) != std::string::npos;
               });
    };
    return std::ranges::all_of(question.phrases, isItem) ? std::optional(startup(context)) : std::nullopt;
}

std::optional<Answer> isInstalled(const Question& question, const AskContext& context)
{
    const Phrase* const unknown = question.first(Sense::unknown);
    const Phrase* const named = unknown != nullptr ? unknown : question.first(Sense::quoted);
    if (named == nullptr || !context.apps || question.count(Sense::unknown) > 1)
        return std::nullopt;
    const Place name{"name", PathText::forDisplay(named->text)};
    if (const auto app = aboutApp(context, named->text))
        return Answer{AskText::sentences({Message{InsightTexts::kInstalled, {name}}, app->text}), {}};
    return Answer{Message{InsightTexts::kAppUnknown, {name}}, {}};
}

std::optional<Answer> aboutApp(const AskContext& context, std::string_view name)
{
    if (!context.apps)
        return std::nullopt;
    const std::string wanted = plainLetters(name);
    const auto found =
        std::ranges::find_if(*context.apps, [&](const KnownApp& app) { return isNamed(app, wanted); });
    return found == context.apps->end() ? std::nullopt : std::optional(described(*found));
}

std::optional<Answer> uninstalling(const Question& question, const AskContext& context)
{
    std::string name;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    if (name.empty())
        return Answer{InsightTexts::kAppRemoval, {}};
    if (std::optional<Answer> app = aboutApp(context, name))
        return app;
    if (!context.apps)
        return Answer{AskText::sentences({InsightTexts::kAppsScreen, InsightTexts::kAppRemoval}), {}};
    return Answer{Message{InsightTexts::kAppUnknown, {{"name", PathText::forDisplay(name)}}}, {}};
}

} // namespace orlen::AskReader
