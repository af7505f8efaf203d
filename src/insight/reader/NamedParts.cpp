#include "insight/reader/NamedParts.h"

#include "insight/reader/AskedName.h"
#include "insight/reader/NamedKinds.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace orlen::AskReader {

namespace {

bool isName(const Phrase& phrase)
{
    return phrase.sense == Sense::unknown || phrase.sense == Sense::quoted;
}

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

} // namespace orlen::AskReader
