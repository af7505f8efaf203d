#include "insight/reader/Exclusions.h"

#include "insight/InsightTexts.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace orlen::AskReader {

std::optional<Exclusions> Exclusions::of(const Question& question, const AskContext& context)
{
    Exclusions exclusions;
    for (const Phrase& phrase : question.phrases) {
        if (phrase.sense == Sense::except && !exclusions.add(phrase.excluded, context))
            return std::nullopt;
    }
    return exclusions;
}

bool Exclusions::add(const std::vector<Phrase>& phrases, const AskContext& context)
{
    std::string name;
    for (std::size_t i = 0; i < phrases.size(); ++i) {
        const Phrase& phrase = phrases[i];
        const bool isNameGoingOn = !name.empty() && !phrase.isJoined;
        if (!name.empty() && phrase.isJoined) {
            if (!addNamed(name, context))
                return false;
            name.clear();
        }
        if (phrase.sense == Sense::ending) {
            m_endings.push_back(phrase.text);
            m_names.push_back(Message::verbatim("." + phrase.text));
            continue;
        }
        // "The wedding video": the kind only says what the name is of.
        if (phrase.subject == nullptr)
            name += (name.empty() ? "" : " ") + phrase.text;
        else if (!isNameGoingOn && !phrase.subject->isAnyFile && !add(*phrase.subject))
            return false;
    }
    return name.empty() ? !m_names.empty() : addNamed(name, context);
}

bool Exclusions::add(const Subject& subject)
{
    const std::string folder = folderOf(subject);
    const bool isPlace = !folder.empty() && subject.extensions.empty();
    // Nothing is known of what lies outside the home folder.
    if (subject.id == SubjectID::home || (!isPlace && subject.extensions.empty() && subject.kinds.empty()))
        return false;
    if (isPlace)
        m_folders.push_back(folder);
    m_kinds.push_back(&subject);
    m_names.push_back(isPlace ? Message::verbatim(tilde(folder)) : Message{subject.name});
    return true;
}

bool Exclusions::addNamed(const std::string& name, const AskContext& context)
{
    const Found found = findNamed(context, name);
    if (found.fit == Fit::none)
        return false;
    for (const Hit& hit : found.hits)
        m_paths.insert(hit.entry->path);
    for (const Measured& measured : found.measured)
        m_folders.push_back(measured.path);
    m_names.push_back(Message::verbatim(PathText::forDisplay(name)));
    return true;
}

bool Exclusions::leaveOut(const Finding& finding, const FileEntry& entry) const
{
    const auto isOfKind = [&](const Subject* subject) {
        return isListedAs(*subject, finding.kind) ||
               (!subject->extensions.empty() && hasExtensionOf(*subject, entry.path));
    };
    return std::ranges::any_of(m_kinds, isOfKind) || leaveOutFile(entry.path);
}

bool Exclusions::leaveOutFile(std::string_view path) const
{
    const auto isOfKind = [&](const Subject* subject) { return hasExtensionOf(*subject, path); };
    const auto isOfEnding = [&](const std::string& ending) { return isNamed(path, ending); };
    return std::ranges::any_of(m_kinds, isOfKind) || std::ranges::any_of(m_endings, isOfEnding) ||
           leaveOut(path) || m_paths.contains(path);
}

bool Exclusions::needsFindings() const
{
    return std::ranges::any_of(m_kinds, [](const Subject* subject) {
        return subject->extensions.empty() && !subject->kinds.empty() && subject->folder.empty();
    });
}

bool Exclusions::leaveOut(std::string_view folder) const
{
    return std::ranges::any_of(m_folders,
                               [&](const std::string& each) { return PathText::isAtOrBelow(folder, each); });
}

std::string Exclusions::onlyFolder() const
{
    return m_names.size() == 1 && m_folders.size() == 1 && m_paths.empty() ? m_folders.front()
                                                                           : std::string();
}

Message Exclusions::said() const
{
    if (empty())
        return {};
    return {InsightTexts::kLeftOut, {{"names", Several{m_names, Several::Joint::commas}}}};
}

} // namespace orlen::AskReader
