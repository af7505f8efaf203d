#include "insight/reader/Narrowing.h"

#include "insight/reader/LowerName.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// "The .git folder of atlas": what lies in a folder of that name, if anything does.
void narrowToOthers(Found& found, const Question& question, const AskedName& asked)
{
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense != Sense::unknown || asked.name.find(phrase.text) != std::string::npos ||
            asked.place.find(phrase.text) != std::string::npos)
            continue;
        const std::string word = "/" + lowered(phrase.text) + "/";
        const auto lies = [&](std::string_view path) {
            return lowered(path).find(word) != std::string::npos;
        };
        if (std::ranges::none_of(found.hits, [&](const Hit& hit) { return lies(hit.entry->path); }) &&
            std::ranges::none_of(found.measured, [&](const Measured& each) { return lies(each.path); }))
            continue;
        std::erase_if(found.hits, [&](const Hit& hit) { return !lies(hit.entry->path); });
        std::erase_if(found.measured, [&](const Measured& each) { return !lies(each.path); });
    }
}

/// "My .cache folder": the one that lies directly in the home folder, if there is one.
void keepTopFolder(Found& found)
{
    const std::string& home = Places::current().home;
    const auto isAtTop = [&](std::string_view path) { return PathText::parent(path) == home; };
    const auto top = std::ranges::find_if(found.measured, [&](const Measured& each) {
        return each.kind == Measured::Kind::folder && isAtTop(each.path);
    });
    if (top == found.measured.end())
        return;
    const Measured only = *top;
    found.hits.clear();
    found.measured = {only};
}

} // namespace

void narrow(Found& found, std::string_view folder)
{
    const auto isElsewhere = [&](std::string_view path) { return !PathText::isAtOrBelow(path, folder); };
    std::erase_if(found.hits, [&](const Hit& hit) { return isElsewhere(hit.entry->path); });
    std::erase_if(found.measured, [&](const Measured& each) { return isElsewhere(each.path); });
    std::erase_if(found.trashed, [&](const TrashedItem* item) { return isElsewhere(item->original); });
}

void keepMeant(Found& found, const Question& question, const AskedName& asked)
{
    narrowToOthers(found, question, asked);
    if (asked.place.empty() && found.fit == Fit::whole &&
        (question.senses.has(Sense::folder) || asked.name.starts_with('.')))
        keepTopFolder(found);
    if (!found.hits.empty())
        return;
    const auto keep = [&](auto isWanted) {
        if (std::ranges::any_of(found.measured, isWanted))
            std::erase_if(found.measured, [&](const Measured& each) { return !isWanted(each); });
    };
    const bool isFolder = question.senses.has(Sense::folder);
    const bool isFile = question.subject() != nullptr && question.subject()->isAnyFile;
    const auto wanted = isFolder ? Measured::Kind::folder : Measured::Kind::file;
    if (isFolder != isFile)
        keep([&](const Measured& each) { return each.kind == wanted; });
    keep([](const Measured& each) { return each.isOwn; });
}

std::vector<Hit> hitsOfSteam(const Question& question, const AskContext& context, std::string_view name)
{
    const auto isSteam = [](const Phrase& phrase) {
        return phrase.subject != nullptr && phrase.subject->id == SubjectID::games &&
               plainLetters(phrase.text) == "steam";
    };
    if (name.empty() || std::ranges::none_of(question.phrases, isSteam))
        return {};
    std::vector<std::string> words = wordsOfName(lowered(name));
    words.emplace_back("steam");
    return holdingAll(context, words);
}

void narrowToSteam(Found& found, const Question& question, const AskContext& context, std::string_view name)
{
    if (std::vector<Hit> hits = hitsOfSteam(question, context, name); !hits.empty()) {
        found = {};
        found.fit = Fit::words;
        found.hits = std::move(hits);
    }
}

} // namespace orlen::AskReader
