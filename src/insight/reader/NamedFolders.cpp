#include "insight/reader/NamedFolders.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/HomeNames.h"
#include "insight/reader/ListReplies.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NameReplies.h"
#include "insight/reader/Names.h"
#include "insight/reader/PathHits.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using Number = HomeFiles::Number;

/// What a project of a tool has beside the folders that it makes.
struct Tool {
    std::string_view name;
    std::string_view beside;
};

constexpr Tool kTools[] = {
    {"cargo", "Cargo.toml"},    {"rust", "Cargo.toml"},      {"maven", "pom.xml"},
    {"gradle", "build.gradle"}, {"cmake", "CMakeLists.txt"}, {"meson", "meson.build"},
    {"npm", "package.json"},    {"node", "package.json"},    {"python", "pyproject.toml"}};

bool isOfTool(const HomeFiles& home, Number folder, std::string_view name)
{
    const HomeFiles::Range files = home.filesIn(home.folder(folder).parent);
    return std::ranges::any_of(kTools, [&](const Tool& tool) {
        if (tool.name != name)
            return false;
        for (Number file = files.first; file < files.last; ++file) {
            if (home.fileName(file) == tool.beside)
                return true;
        }
        return false;
    });
}

/// Whether one of the folders around it has the name.
bool isWithin(const HomeFiles& home, Number folder, std::string_view name)
{
    for (Number each = folder; each > 0;) {
        each = home.folder(each).parent;
        if (each > 0 && lowered(home.folderName(each)) == name)
            return true;
    }
    return false;
}

/// The two names, in lower case; nothing unless there are two.
std::optional<std::pair<std::string, std::string>> twoNames(const Question& question)
{
    std::vector<std::string> names;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted)
            names.push_back(lowered(phrase.text));
    }
    return names.size() == 2 ? std::optional(std::pair(names[0], names[1])) : std::nullopt;
}

/// That there is none: "the build folder of tool", which has no such folder. Nothing unless that is sure.
std::optional<Answer> missingInProject(const Question& question, const AskContext& context)
{
    const auto names = twoNames(question);
    // Only of "the build folder of tool" it is clear which of both is in the other.
    const std::size_t at = question.position(Sense::folder);
    const bool isOrdered = at > 0 && at + 1 < question.phrases.size() &&
                           lowered(question.phrases[at - 1].text) == (names ? names->first : "") &&
                           lowered(question.phrases[at + 1].text) == (names ? names->second : "");
    const std::string path = isOrdered && context.home != nullptr ? folderNamed(context, names->second) : "";
    const auto folder = path.empty() ? std::nullopt : context.home->folderAt(path);
    if (!folder || !context.home->folder(*folder).isOwn)
        return std::nullopt;
    return Answer{
        Message{InsightTexts::kNotThere,
                {{"name", PathText::forDisplay(question.phrases[at - 1].text)}, {"folder", tilde(path)}}},
        {}};
}

/// The largest folder of the person's own with the name, or at the path.
std::optional<Number> ownFolder(const AskContext& context, const std::string& name)
{
    if (context.home == nullptr)
        return std::nullopt;
    const HomeFiles& home = *context.home;
    if (const std::string path = pathIn(name); !path.empty()) {
        const auto folder = home.folderAt(path);
        return folder && home.folder(*folder).isOwn ? folder : std::nullopt;
    }
    std::optional<Number> best;
    for (const HomeNames::Item& item : context.names->of(context.home)->named(lowered(name))) {
        if (item.isFolder && home.folder(item.number).isOwn &&
            (!best || home.folder(item.number).bytes > home.folder(*best).bytes))
            best = item.number;
    }
    return best;
}

} // namespace

Found folderOfProject(const Question& question, const AskContext& context)
{
    Found found;
    const auto names = twoNames(question);
    if (context.home == nullptr || !names)
        return found;
    const HomeFiles& home = *context.home;
    const auto& [first, second] = *names;
    for (Number each = 1; each < home.folderCount();) {
        const std::string name = lowered(home.folderName(each));
        const std::string& other = name == first ? second : first;
        const bool isOne = (name == first || name == second) && home.folderName(each) != "Trash" &&
                           (isWithin(home, each, other) || isOfTool(home, each, other));
        if (isOne) {
            Measured one{home.folderPath(each), home.folder(each).bytes, {}};
            one.kind = Measured::Kind::folder;
            one.isOwn = home.folder(each).isOwn;
            found.measured.push_back(std::move(one));
        }
        each = isOne ? home.foldersFrom(each).last : each + 1;
    }
    std::erase_if(found.measured, [&](const Measured& each) {
        const Hit around = hitsAround(std::span(&each.path, 1), context).front();
        const bool isListed = around.finding != nullptr && around.entry->path == each.path;
        if (isListed)
            found.hits.push_back(around);
        return isListed;
    });
    if (!found.hits.empty() || !found.measured.empty())
        found.fit = Fit::whole;
    return found;
}

std::optional<Answer> aboutFolderOfProject(const Question& question, const AskContext& context)
{
    const Found found = folderOfProject(question, context);
    if (found.fit == Fit::none)
        return missingInProject(question, context);
    const std::string name = PathText::forDisplay(nameIn(question).name);
    return found.hits.empty() ? measuredOnly(question, context, found, name)
                              : listedHits(context, found, name);
}

std::optional<Answer> contentsOf(const Question& question, const AskContext& context)
{
    std::string name;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    const std::optional<Number> folder = ownFolder(context, name);
    if (!folder)
        return std::nullopt;
    const std::string path = context.home->folderPath(*folder);
    const Question named = withPhrases(question, {{Sense::quoted, tilde(path), nullptr, 0, {}}});
    const Question listed = withPhrases(question, {{Sense::biggest, {}, nullptr, 0, {}},
                                                   {Sense::subject, {}, &subjectFor(SubjectID::files)},
                                                   {Sense::inside, {}, nullptr, 0, {}},
                                                   named.phrases.front()});
    std::optional<Answer> files = listOfFiles(listed, context);
    std::optional<Answer> about = aboutName(named, context);
    if (!files || !about)
        return files;
    files->text = AskText::lines({std::move(files->text), std::move(about->text)});
    files->findingIDs = std::move(about->findingIDs);
    return files;
}

std::optional<Answer> listOfNamed(const Question& question, const AskContext& context)
{
    if (context.home == nullptr)
        return std::nullopt;
    std::vector<Phrase> phrases{{Sense::biggest, {}, nullptr, 0, {}}};
    for (std::size_t i = 0; i < question.phrases.size(); ++i) {
        const Phrase& each = question.phrases[i];
        const bool isIdle = each.sense == Sense::what || each.sense == Sense::inside;
        if (!isIdle)
            phrases.push_back(each);
        const bool isName = each.sense == Sense::unknown || each.sense == Sense::quoted;
        const bool goesOn = i + 1 < question.phrases.size() && question.phrases[i + 1].sense == each.sense;
        if (isName && !goesOn)
            phrases.push_back({Sense::subject, {}, &subjectFor(SubjectID::files)});
    }
    return listOfFiles(withPhrases(question, std::move(phrases)), context);
}

std::optional<Answer> foldersNamed(const Question& question, const AskContext& context)
{
    constexpr std::size_t kShown = 5;
    const std::size_t at = question.position(Sense::folder);
    const std::string name = nameIn(question).name;
    const bool isBefore = at > 0 && at < question.phrases.size() && question.phrases[at - 1].text == name;
    if (context.home == nullptr || name.empty() || (!isBefore && !question.senses.has(Sense::called)))
        return std::nullopt;
    const HomeFiles& home = *context.home;
    const std::string lower = lowered(name);
    std::vector<HomeFiles::Number> folders;
    std::int64_t bytes = 0;
    for (HomeFiles::Number each = 1; each < home.folderCount();) {
        const bool isOne = lowered(home.folder(each).name).find(lower) != std::string::npos;
        if (isOne) {
            folders.push_back(each);
            bytes = checkedAdd(bytes, home.folder(each).bytes);
        }
        // What lies in one is part of it.
        each = isOne ? home.foldersFrom(each).last : each + 1;
    }
    std::ranges::stable_sort(folders, std::greater{}, [&](auto each) { return home.folder(each).bytes; });
    const Message files{InsightTexts::kFilesNamed,
                        {{"files", within(InsightTexts::kFolders)}, {"name", PathText::forDisplay(name)}}};
    if (folders.empty())
        return Answer{Message{InsightTexts::kNoFilesThere, {{"files", within(files)}}}, {}};
    std::vector<Message> lines{
        {InsightTexts::kFilesThere,
         {{"files", within(files)}, {"count", std::ssize(folders)}, {"size", Bytes{bytes}}}}};
    Answer answer;
    for (const HomeFiles::Number each : std::span(folders).first(std::min(folders.size(), kShown))) {
        answer.paths.push_back(home.folderPath(each));
        lines.push_back({InsightTexts::kDownload,
                         {{"name", tilde(answer.paths.back())}, {"size", Bytes{home.folder(each).bytes}}}});
    }
    if (folders.size() > kShown)
        lines.push_back(
            {InsightTexts::kMoreFit, {{"count", static_cast<std::int64_t>(folders.size() - kShown)}}});
    answer.text = AskText::lines(std::move(lines));
    return answer;
}

} // namespace orlen::AskReader
