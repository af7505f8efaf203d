#include "insight/reader/AskedName.h"

#include "insight/reader/Lexicon.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <vector>

namespace orlen::AskReader {

namespace {

/// Written like the name of a file.
bool hasFileExtension(std::string_view name)
{
    const std::string_view extension = PathText::extension(name);
    return extension.size() >= 2 && extension.size() <= 8 && extension.find(' ') == std::string_view::npos;
}

bool isOfName(const Phrase& phrase)
{
    return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
}

/// Where the name of the folder begins; the number of phrases if none is named.
std::size_t placeIn(const Question& question)
{
    const std::vector<Phrase>& phrases = question.phrases;
    bool hasName = false;
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        std::size_t before = i;
        while (before > 0 && phrases[before - 1].sense == Sense::folder)
            --before;
        if (isOfName(phrases[i]) && hasName && before > 0 && phrases[before - 1].sense == Sense::inside)
            return i;
        hasName = hasName || isOfName(phrases[i]);
    }
    return phrases.size();
}

/// The words that may be a name, of those phrases.
std::string nameAmong(std::span<const Phrase> named)
{
    const auto quoted = std::ranges::find(named, Sense::quoted, &Phrase::sense);
    if (quoted != named.end())
        return quoted->text;
    const auto isFile = [](const Phrase& phrase) {
        return phrase.sense == Sense::unknown && hasFileExtension(phrase.text);
    };
    // What stands around the name of a file is no part of it.
    if (std::ranges::count_if(named, isFile) == 1)
        return std::ranges::find_if(named, isFile)->text;
    std::string name;
    for (const Phrase& phrase : named) {
        if (phrase.sense == Sense::unknown)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    return name;
}

} // namespace

AskedName nameIn(const Question& question)
{
    const std::span all(question.phrases);
    const std::size_t place = placeIn(question);
    return {nameAmong(all.first(place)), place < all.size() ? all[place].text : std::string()};
}

bool isWordOfNames(std::string_view name)
{
    constexpr std::string_view kWords[] = {
        "backup",    "backups", "sicherung", "sicherungen", "sauvegarde", "sauvegardes", "respaldo",
        "respaldos", "code",    "build",     "mail",        "mails",      "emails"};
    return std::ranges::find(kWords, plainLetters(name)) != std::end(kWords);
}

bool isFileName(const Question& question, std::string_view name)
{
    return question.first(Sense::quoted) != nullptr || !pathIn(name).empty() || hasFileExtension(name);
}

} // namespace orlen::AskReader
