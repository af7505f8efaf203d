#include "insight/reader/ProgramReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/reader/SubjectReplies.h"
#include "insight/reader/UnusedApps.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <functional>
#include <iterator>
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

std::vector<Message> biggestApps(const AskContext& context,
                                 const std::function<bool(const KnownApp&)>& isMeant)
{
    std::vector<KnownApp> apps;
    std::ranges::copy_if(context.apps.value_or(std::vector<KnownApp>()), std::back_inserter(apps),
                         [&](const KnownApp& app) { return app.bytes && isMeant(app); });
    if (apps.empty())
        return {};
    std::ranges::stable_sort(apps, std::greater{}, &KnownApp::bytes);
    apps.resize(std::min(apps.size(), kNamedApps));
    Several list{{}, Several::Joint::commas};
    for (const KnownApp& app : apps)
        list.messages.push_back(AskText::sized(PathText::forDisplay(app.name), *app.bytes));
    return {{InsightTexts::kBiggestApps, {{"apps", std::move(list)}}}};
}

Answer apps(const Question& question, const AskContext& context)
{
    std::vector<Message> lines;
    if (question.senses.has(Sense::unopened)) {
        lines = unusedApps(question, context);
    } else if (const auto size = sizeOfSubject(question, context); size && !size->text.empty()) {
        lines.push_back(size->text);
    }
    if (!question.senses.has(Sense::unopened))
        std::ranges::move(biggestApps(context, [](const KnownApp&) { return true; }),
                          std::back_inserter(lines));
    lines.emplace_back(question.senses.meets({Sense::remove, Sense::uninstall}) ? InsightTexts::kAppRemoval
                                                                                : InsightTexts::kAppsScreen);
    return {AskText::lines(std::move(lines)), {}};
}

Answer startup(const AskContext& context)
{
    std::vector<Message> lines;
    Several names{{}, Several::Joint::commas};
    for (const KnownStartupItem& item : context.startupItems.value_or(std::vector<KnownStartupItem>())) {
        if (item.isEnabled)
            names.messages.push_back(Message::verbatim(PathText::forDisplay(item.name)));
    }
    if (!names.messages.empty())
        lines.push_back({InsightTexts::kStartingItems,
                         {{"count", std::ssize(names.messages)}, {"names", std::move(names)}}});
    lines.emplace_back(InsightTexts::kStartupScreen);
    return {AskText::lines(std::move(lines)), {}};
}

Answer packaged(const AskContext& context, KnownApp::Source source, const Text& how)
{
    std::vector<Message> lines =
        biggestApps(context, [&](const KnownApp& app) { return app.source == source; });
    lines.emplace_back(how);
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
        return packaged(context, KnownApp::Source::flatpak, InsightTexts::kFlatpaks);
    case SubjectID::snap:
        return packaged(context, KnownApp::Source::snap, InsightTexts::kSnaps);
    case SubjectID::games:
        return Answer{InsightTexts::kGames, {}};
    default:
        // Any other program is one of the applications.
        return question.count(Sense::subject) > 1 ? std::nullopt : std::optional(apps(question, context));
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
