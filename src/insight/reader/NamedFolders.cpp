#include "insight/reader/NamedFolders.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

std::optional<Answer> foldersNamed(const Question& question, const AskContext& context)
{
    constexpr std::size_t kShown = 5;
    const std::size_t at = question.position(Sense::folder);
    const std::string name = nameIn(question).name;
    if (context.home == nullptr || at == 0 || at == question.phrases.size() || name.empty() ||
        question.phrases[at - 1].text != name)
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
