#include "insight/reader/GameReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsPrograms.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "insight/reader/Periods.h"
#include "insight/reader/SubjectReplies.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

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
    const Place files{"files", within(areGames ? InsightTexts::kSteamGames : InsightTexts::kFolders)};
    if (each.empty())
        lines.push_back({InsightTexts::kNoFilesThere,
                         {areGames ? files : Place{"files", within(Message::verbatim("Steam"))}}});
    else if (areGames || each.size() != 1)
        lines.push_back(
            {InsightTexts::kFilesThere, {files, {"count", std::ssize(each)}, {"size", Bytes{bytes}}}});
    constexpr std::size_t kShown = 10;
    for (const CategoryFolder& one : std::span(each).first(std::min(each.size(), kShown))) {
        const bool isFolder = !areGames && each.size() == 1;
        const std::string name =
            areGames ? PathText::forDisplay(PathText::lastComponent(one.path)) : tilde(one.path);
        lines.push_back({isFolder ? InsightTexts::kFolderTakes : InsightTexts::kDownload,
                         {{isFolder ? "folder" : "name", name}, {"size", Bytes{one.bytes}}}});
        answer.paths.push_back(one.path);
    }
    if (each.size() > kShown)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(each.size() - kShown)}}});
    lines.emplace_back(InsightTexts::kGames);
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

bool hasSteamGames(const HomeFiles& home)
{
    return std::ranges::any_of(Places::current().expand("{STEAM}/steamapps/common"),
                               [&](const std::string& folder) {
                                   const auto at = home.folderAt(folder);
                                   return at && home.foldersFrom(*at).last > *at + 1;
                               });
}

/// The words of a name that a game has to have: those of the question, figures too.
std::vector<std::string> askedWords(const Question& question)
{
    std::vector<std::string> words;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted || phrase.sense == Sense::number)
            std::ranges::move(wordsOfName(lowered(phrase.text)), std::back_inserter(words));
    }
    return words;
}

/// The folder of the one game of Steam that the question names; nothing if there is none, or several.
std::optional<HomeFiles::Number> gameIn(const Question& question, const AskContext& context)
{
    const std::vector<std::string> asked = askedWords(question);
    if (context.home == nullptr || asked.empty() || !question.senses.meets({Sense::unknown, Sense::quoted}))
        return std::nullopt;
    const HomeFiles& home = *context.home;
    std::vector<HomeFiles::Number> found;
    for (const std::string& folder : Places::current().expand("{STEAM}/steamapps/common")) {
        const auto at = home.folderAt(folder);
        const HomeFiles::Number last = at ? home.foldersFrom(*at).last : 0;
        for (HomeFiles::Number game = at ? *at + 1 : 0; game < last; game = home.foldersFrom(game).last) {
            const std::vector<std::string> words = wordsOfName(lowered(home.folderName(game)));
            const bool fits = std::ranges::all_of(asked, [&](const std::string& word) {
                return std::ranges::find(words, word) != words.end();
            });
            if (fits)
                found.push_back(game);
        }
    }
    // "Portal" is not the second one.
    const auto isWhole = [&](HomeFiles::Number game) {
        return wordsOfName(lowered(home.folderName(game))).size() == asked.size();
    };
    if (const auto whole = std::ranges::find_if(found, isWhole); whole != found.end())
        found = {*whole};
    if (found.size() != 1)
        return std::nullopt;
    return found.front();
}

} // namespace

std::optional<Answer> removingGame(const Question& question, const AskContext& context)
{
    const auto game = gameIn(question, context);
    if (!game)
        return std::nullopt;
    const std::string path = context.home->folderPath(*game);
    return Answer{AskText::lines(
                      {Message{InsightTexts::kFolderTakes,
                               {{"folder", tilde(path)}, {"size", Bytes{context.home->folder(*game).bytes}}}},
                       InsightTexts::kGames}),
                  {},
                  false,
                  {path}};
}

std::optional<Answer> lastReadOfGame(const Question& question, const AskContext& context)
{
    const auto game = gameIn(question, context);
    if (!game)
        return std::nullopt;
    const HomeFiles& home = *context.home;
    const HomeFiles::Range files = home.filesBelow(*game);
    if (files.first == files.last)
        return std::nullopt;
    TimePoint last = home.file(files.first).opened;
    for (HomeFiles::Number each = files.first; each < files.last; ++each)
        last = std::max(last, home.file(each).opened);
    return Answer{Message{InsightTexts::kAppLastRead,
                          {{"name", PathText::forDisplay(home.folderName(*game))},
                           {"size", Bytes{home.folder(*game).bytes}},
                           {"date", dayOf(last)}}},
                  {},
                  false,
                  {home.folderPath(*game)}};
}

std::optional<Answer> games(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOther{Sense::newest, Sense::oldest, Sense::period, Sense::unopened, Sense::size};
    // "The Steam screenshots" are no games.
    const bool isOfKind = std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
        const Subject* const subject = phrase.subject;
        return subject != nullptr && !subject->isAnyFile && !subject->isProgram &&
               (!subject->kinds.empty() || !subject->extensions.empty()) &&
               subject->id != SubjectID::downloads;
    });
    if (question.senses.meets(kOther) || isOfKind)
        return std::nullopt;
    const bool isSteam = std::ranges::any_of(question.phrases, [](const Phrase& phrase) {
        return phrase.subject != nullptr && plainLetters(phrase.text).find("steam") != std::string::npos;
    });
    if (isSteam && context.home != nullptr)
        return steam(question, context);
    std::vector<Message> lines;
    const bool hasSteam = context.home != nullptr && hasSteamGames(*context.home);
    if (hasSteam)
        lines.push_back(steam(question, context).text);
    for (const CategoryFolder& folder : context.breakdown.folders) {
        constexpr std::string_view kOfGames[] = {"Games", "lutris", "bottles", "heroic", "Steam", "steam"};
        const std::string_view name = PathText::lastComponent(folder.path);
        const bool isOfSteam = hasSteam && plainLetters(name) == "steam";
        if (folder.category == OrlenCategory::apps && !isOfSteam &&
            std::ranges::find(kOfGames, name) != std::end(kOfGames))
            lines.push_back({InsightTexts::kFolderTakes,
                             {{"folder", tilde(folder.path)},
                              {"size", Bytes{folderSize(context, folder.path).value_or(folder.bytes)}}}});
    }
    if (!hasSteam)
        lines.emplace_back(InsightTexts::kGames);
    return Answer{AskText::lines(std::move(lines)), {}};
}

} // namespace orlen::AskReader
