#include "insight/reader/NamedTogether.h"

#include "insight/AskText.h"
#include "insight/InsightTextsNames.h"
#include "insight/reader/AskedName.h"
#include "insight/reader/FoundReplies.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NamedFolders.h"
#include "insight/reader/NamedKinds.h"
#include "insight/reader/NamedParts.h"
#include "insight/reader/Names.h"
#include "insight/reader/PathHits.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

using Words = std::vector<std::string>;

/// The phrases that are named together, apart from what stands behind an "and".
std::vector<std::vector<Phrase>> groupsOf(const Question& question)
{
    constexpr SenseSet kNaming{Sense::unknown, Sense::quoted, Sense::subject, Sense::ending};
    std::vector<std::vector<Phrase>> groups;
    for (const Phrase& phrase : question.phrases) {
        if (!kNaming.has(phrase.sense))
            continue;
        if (groups.empty() || phrase.isJoined)
            groups.emplace_back();
        groups.back().push_back(phrase);
    }
    return groups;
}

std::string namedBy(const std::vector<Phrase>& phrases)
{
    std::string name;
    for (const Phrase& phrase : phrases) {
        if (phrase.sense == Sense::unknown || phrase.sense == Sense::quoted)
            name += (name.empty() ? "" : " ") + phrase.text;
    }
    return name;
}

/// What lies below a folder and has all words in its path there, the last one in its name: of "node v18" in
/// ~/.nvm, versions/node/v18. The first of them, with the folders before the files.
std::optional<Measured> inFolder(const HomeFiles& home, HomeFiles::Number place, const Words& words)
{
    const std::size_t length = home.folderPath(place).size();
    const auto fits = [&](const std::string& path) {
        const std::string below = lowered(std::string_view(path).substr(length));
        return std::ranges::all_of(words, [&](const std::string& word) { return holdsWord(below, word); }) &&
               holdsWord(PathText::lastComponent(below), words.back());
    };
    const HomeFiles::Range folders = home.foldersFrom(place);
    for (HomeFiles::Number each = folders.first + 1; each < folders.last; ++each) {
        if (std::string path = home.folderPath(each); fits(path)) {
            Measured one{std::move(path), home.folder(each).bytes, {}};
            one.kind = Measured::Kind::folder;
            return one;
        }
    }
    const HomeFiles::Range files = home.filesBelow(place);
    for (HomeFiles::Number each = files.first; each < files.last; ++each) {
        if (std::string path = home.filePath(each); fits(path)) {
            Measured one{std::move(path), home.file(each).bytes, {}};
            one.kind = Measured::Kind::file;
            one.changed = home.file(each).changed;
            return one;
        }
    }
    return std::nullopt;
}

/// Adds what each group of phrases names in a folder, "both node v18 and v20 in .nvm"; false if one is not
/// there.
bool addAllInFolder(Found& all, const AskContext& context, const std::vector<std::vector<Phrase>>& groups,
                    const std::string& place)
{
    const std::string path = folderNamed(context, place);
    const auto folder = path.empty() || context.home == nullptr ? std::nullopt : context.home->folderAt(path);
    if (!folder)
        return false;
    for (std::vector<Phrase> phrases : groups) {
        std::erase_if(phrases, [&](const Phrase& phrase) { return phrase.text == place; });
        const Words words = wordsOfName(lowered(namedBy(phrases)));
        std::optional<Measured> one = words.empty() ? std::nullopt : inFolder(*context.home, *folder, words);
        if (!one)
            return false;
        all.measured.push_back(*std::move(one));
    }
    // As the findings say it, if one lists it.
    std::erase_if(all.measured, [&](const Measured& each) {
        const Hit around = hitsAround(std::span(&each.path, 1), context).front();
        const bool isListed = around.finding != nullptr && around.entry->path == each.path;
        if (isListed)
            all.hits.push_back(around);
        return isListed;
    });
    return true;
}

/// Adds the one that a group of phrases names, or all caches of a program; false if there is none or several.
bool addNamed(Found& all, const Question& question, const AskContext& context,
              const std::vector<Phrase>& phrases, std::vector<Message>& notes)
{
    const std::string name = namedBy(phrases);
    if (name.empty())
        return false;
    const Question one = withPhrases(question, phrases);
    if (const std::optional<ProgramName> program = partOf(one)) {
        Found places = placesOf(context, *program);
        std::erase_if(places.measured, [](const Measured& each) { return each.bytes == 0; });
        if (places.hits.empty() && places.measured.empty())
            notes.push_back(places.trashed.empty() ? noSuchPart(*program).text : inTrash(places).text);
        std::ranges::move(places.hits, std::back_inserter(all.hits));
        std::ranges::move(places.measured, std::back_inserter(all.measured));
        return context.home != nullptr;
    }
    Found found = ofKindNamed(one, context, name);
    const bool isOfKind = found.fit != Fit::none; // "the Zoom installers" may be several
    if (!isOfKind) {
        found = findNamed(context, name);
        keepOfKind(found, one, context, name);
        found = ofHome(std::move(found), one, context);
    }
    if (found.fit < Fit::words)
        found = folderOfProject(one, context);
    const std::size_t count = found.hits.size() + found.measured.size();
    if (count == 0 || (count > 1 && !isOfKind) || found.fit < Fit::words)
        return false;
    std::ranges::move(found.hits, std::back_inserter(all.hits));
    std::ranges::move(found.measured, std::back_inserter(all.measured));
    return true;
}

} // namespace

std::optional<Answer> sumOfNamed(const Question& question, const AskContext& context)
{
    constexpr SenseSet kOnlyNames{Sense::unknown, Sense::quoted, Sense::subject, Sense::general,
                                  Sense::folder,  Sense::what,   Sense::takes,   Sense::can,
                                  Sense::ending,  Sense::number};
    if (!question.senses.meets({Sense::howMuch, Sense::howBig, Sense::remove, Sense::safe, Sense::keep}) &&
        !question.senses.isWithin(kOnlyNames))
        return std::nullopt;
    std::vector<std::vector<Phrase>> groups = groupsOf(question);
    sharePart(question, groups);
    shareKind(question, context, groups);
    const std::string place = nameIn(question).place;
    const Phrase* const number = question.first(Sense::number);
    if (groups.size() < 2 || (number != nullptr && number->amount != std::ssize(groups)))
        return std::nullopt;
    Found all;
    std::vector<Message> notes;
    const bool areFound = !place.empty()
                              ? addAllInFolder(all, context, groups, place)
                              : std::ranges::all_of(groups, [&](const std::vector<Phrase>& phrases) {
                                    return addNamed(all, question, context, phrases, notes);
                                });
    if (!areFound)
        return std::nullopt;
    std::int64_t bytes = 0;
    for (const Hit& hit : all.hits)
        bytes = checkedAdd(bytes, hit.entry->size);
    for (const Measured& each : all.measured)
        bytes = checkedAdd(bytes, each.bytes);
    if (all.hits.empty() && all.measured.empty())
        return notes.empty() ? std::nullopt : std::optional(Answer{AskText::lines(std::move(notes)), {}});
    Answer answer = listedBelow({InsightTexts::kTogether, {{"size", Bytes{bytes}}}}, context, all);
    notes.insert(notes.begin(), std::move(answer.text));
    answer.text = AskText::lines(std::move(notes));
    return answer;
}

} // namespace orlen::AskReader
