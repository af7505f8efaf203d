#include "insight/reader/NamedParts.h"

#include "insight/reader/AskedName.h"
#include "insight/reader/ListPlaces.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NamedKinds.h"
#include "insight/reader/Names.h"
#include "insight/reader/ProgramPlaces.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace orlen::AskReader {

namespace {

/// Caches or log files; null for anything else.
const Subject* partSubject(const Question& group)
{
    const std::optional<ProgramName> program = partOf(group);
    if (!program)
        return nullptr;
    return &subjectFor(program->part == PlacePart::caches ? SubjectID::caches : SubjectID::logs);
}

/// Nothing but the name of a program.
bool isProgramAlone(const Question& group)
{
    return !group.phrases.empty() && std::ranges::all_of(group.phrases, isName) &&
           !isFileName(group, nameIn(group).name) && partSubject(group) == nullptr;
}

/// Whether something in the folder for caches has the word in its name.
bool isNamedInCaches(const AskContext& context, const std::string& word)
{
    const std::string lower = lowered(word);
    const auto holds = [&](std::string_view name) { return lowered(name).find(lower) != std::string::npos; };
    const HomeFiles& home = *context.home;
    return std::ranges::any_of(Places::current().expand("{CACHE}"), [&](const std::string& path) {
        const auto folder = home.folderAt(path);
        if (!folder)
            return false;
        const HomeFiles::Range files = home.filesIn(*folder);
        const HomeFiles::Number last = home.foldersFrom(*folder).last;
        for (HomeFiles::Number file = files.first; file < files.last; ++file) {
            if (holds(home.fileName(file)))
                return true;
        }
        for (HomeFiles::Number each = *folder + 1; each < last; each = home.foldersFrom(each).last) {
            if (holds(home.folderName(each)))
                return true;
        }
        return false;
    });
}

} // namespace

std::optional<ProgramName> partOf(const Question& group)
{
    const AskedName asked = nameIn(group);
    if (asked.name.empty() || !asked.place.empty() || isFileName(group, asked.name) ||
        group.senses.has(Sense::folder))
        return std::nullopt;
    ProgramName program = programIn(group, asked.name);
    const bool isPart = program.part == PlacePart::caches || program.part == PlacePart::logs;
    return isPart && !program.name.empty() ? std::optional(std::move(program)) : std::nullopt;
}

void sharePart(const Question& question, std::vector<std::vector<Phrase>>& groups)
{
    if (groups.size() < 2)
        return;
    const auto groupAt = [&](std::size_t i) { return withPhrases(question, groups[i]); };
    const std::size_t last = groups.size() - 1;
    const bool isBefore = !isName(groups.front().front());
    const Subject* const shared = isBefore                       ? partSubject(groupAt(0))
                                  : !isName(groups[last].back()) ? partSubject(groupAt(last))
                                                                 : nullptr;
    // "Firefox- und Spotify-Cache"
    const Subject* const compound =
        shared == nullptr && groups[last].size() == 1 ? partSubject(groupAt(last)) : nullptr;
    const Subject* const part = shared != nullptr ? shared : compound;
    for (std::size_t i = 0; part != nullptr && i < groups.size(); ++i) {
        if (isProgramAlone(groupAt(i)))
            groups[i].push_back({Sense::subject, {}, part});
    }
}

void shareKind(const Question& question, const AskContext& context, std::vector<std::vector<Phrase>>& groups)
{
    if (groups.size() < 2)
        return;
    const std::vector<Phrase>& last = groups.back();
    const auto kind = std::find_if_not(last.begin(), last.end(), isName);
    const bool isKind =
        kind != last.begin() && kind != last.end() &&
        (kind->sense == Sense::ending || (kind->subject != nullptr && !kind->subject->extensions.empty()));
    if (!isKind)
        return;
    const std::vector<Phrase> words(kind, last.end());
    for (std::vector<Phrase>& group : groups) {
        const Question alone = withPhrases(question, group);
        const std::string name = nameIn(alone).name;
        if (!std::ranges::all_of(group, isName) || isFileName(alone, name))
            continue;
        std::vector<Phrase> both = group;
        both.insert(both.end(), words.begin(), words.end());
        if (ofKindNamed(withPhrases(question, both), context, name).fit != Fit::none)
            group = std::move(both);
    }
}

bool isPlainName(std::string_view name)
{
    constexpr std::size_t kShortestEnding = 2;
    return !name.starts_with('.') && name.find('/') == std::string_view::npos && name != "~" &&
           PathText::extension(name).size() < kShortestEnding;
}

bool isProgram(const AskContext& context, const ProgramName& program)
{
    return placesOf(context, {program.name, PlacePart::all}).fit != Fit::none;
}

std::optional<Answer> aboutPart(const Question& question, const AskContext& context, const AskedName& asked)
{
    const ProgramName program = programIn(question, asked.name);
    if (program.part == PlacePart::all || !asked.place.empty() || !isPlainName(asked.name))
        return std::nullopt;
    if (std::optional<Answer> answer = aboutPlaces(question, context, program))
        return answer;
    const Subject* const subject = question.subject();
    const bool isListed = subject != nullptr && !subject->kinds.empty() &&
                          findNamed(context, program.name, subject->kinds).fit >= Fit::part;
    // "The Blender cache" can be no other, whether or not Blender is there.
    const bool isOnlyCache = program.part == PlacePart::caches && context.home != nullptr &&
                             question.count(Sense::unknown) + question.count(Sense::quoted) == 1 &&
                             question.count(Sense::subject) == 1 && program.name.size() > 2;
    if (isListed || (isOnlyCache && isNamedInCaches(context, program.name)) ||
        (!isOnlyCache && !isProgram(context, program)) || program.part == PlacePart::saves)
        return std::nullopt;
    return noSuchPart(program);
}

} // namespace orlen::AskReader
