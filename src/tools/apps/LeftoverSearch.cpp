#include "tools/apps/LeftoverSearch.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/mac/PropertyList.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "tools/apps/Flatpaks.h"
#include "tools/apps/Leftovers.h"
#include "tools/apps/RemainingApps.h"
#include "tools/startup/UnitFile.h"

#include <algorithm>

namespace orlen {

namespace {

using Kind = LeftoverRules::Kind;
using Match = LeftoverRules::Match;

std::string noteOf(const LeftoverRoot& root, Match match)
{
    switch (root.kind) {
    case Kind::library:
    case Kind::namedLibrary:
    case Kind::agents:
        return std::string(root.label);
    case Kind::settings:
    case Kind::container:
    case Kind::metadata:
    case Kind::launchers:
    case Kind::units:
        break;
    }
    return match == Match::nameOnly ? std::string(Leftovers::kByNameOnly) : std::string();
}

} // namespace

LeftoverSearch::LeftoverSearch(LeftoverRules::Subject subject, const RemainingApps& remaining,
                               const AppInfo* app)
    : m_subject(std::move(subject)), m_remaining(remaining), m_app(app)
{
}

std::vector<FileEntry> LeftoverSearch::run(const std::stop_token& stop)
{
    m_found.clear();
    for (const LeftoverRoot& root : LeftoverRoots::all()) {
        if (stop.stop_requested())
            return {};
        lookInto(root);
    }
    if (m_app != nullptr && m_app->source == AppSource::appImage)
        lookBeside(m_app->path);
    std::vector<std::string> paths;
    for (const Candidate& candidate : m_found)
        paths.push_back(candidate.path);
    std::vector<FileEntry> entries = FS::entries(paths, {}, stop);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!m_found[i].note.empty())
            entries[i].note = m_found[i].note;
    }
    return entries;
}

void LeftoverSearch::lookInto(const LeftoverRoot& root)
{
    std::vector<std::string> names = listNames(root.folder);
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) {
        if (!PathText::isValidUtf8(name))
            continue;
        const Match match = judged(root, name);
        if (match != Match::none)
            offer(PathText::join(root.folder, name), noteOf(root, match));
    }
}

void LeftoverSearch::lookBeside(const std::string& image)
{
    for (const std::string_view suffix : LeftoverRoots::kPortableSuffixes)
        offer(image + std::string(suffix), {});
}

Match LeftoverSearch::judged(const LeftoverRoot& root, const std::string& name) const
{
    const std::string entry = LanguageTools::lowerCase(name);
    const Match match = LeftoverRules::match(entry, root.kind, m_subject);
    if (match == Match::nameOnly)
        return match;
    if (match == Match::identifier) {
        const bool isInUse = root.kind == Kind::container && Flatpaks::isInstalled(name);
        return isInUse || m_remaining.claims(entry, m_subject.identifier) ? Match::none : match;
    }
    const std::string path = PathText::join(root.folder, name);
    const bool isOwn = (root.kind == Kind::agents && isLabelled(path)) ||
                       (root.kind == Kind::launchers && isLauncher(path)) ||
                       (root.kind == Kind::units && isUnit(path));
    return isOwn ? Match::identifier : Match::none;
}

/// A property list with another name may still be labelled as the application's.
bool LeftoverSearch::isLabelled(const std::string& path) const
{
    if (m_subject.identifier.empty() || PathText::extension(path) != "plist")
        return false;
    const auto list = PropertyList::read(path);
    return list && LanguageTools::lowerCase(list->text("Label")).starts_with(m_subject.identifier);
}

bool LeftoverSearch::isLauncher(const std::string& path) const
{
    return m_app != nullptr &&
           std::find(m_app->launchers.begin(), m_app->launchers.end(), path) != m_app->launchers.end();
}

bool LeftoverSearch::isUnit(const std::string& path) const
{
    const Places& places = Places::current();
    if (m_app == nullptr || PathText::extension(path) != "service")
        return false;
    const auto unit = UnitFile::read(path, places.home);
    if (!unit || !unit->program.starts_with('/'))
        return false;
    const std::string target = resolved(unit->program);
    return PathText::isAtOrBelow(places.normalized(unit->program), m_app->path) ||
           (!target.empty() && PathText::isAtOrBelow(places.normalized(target), m_app->path));
}

bool LeftoverSearch::overlapsApp(const std::string& path) const
{
    return m_app != nullptr &&
           (PathText::isAtOrBelow(path, m_app->path) || PathText::isAtOrBelow(m_app->path, path));
}

bool LeftoverSearch::isOffered(const std::string& path) const
{
    return std::any_of(m_found.begin(), m_found.end(), [&](const Candidate& candidate) {
        return PathText::isAtOrBelow(path, candidate.path);
    });
}

/// Every candidate passes through here. Links are kept: their targets are elsewhere.
void LeftoverSearch::offer(std::string path, std::string note)
{
    const auto status = statusOf(path);
    if (!status.ok() || status.value().type == FileType::link || Safety::isProtected(path) ||
        m_remaining.lieIn(path) || overlapsApp(path) || isOffered(path))
        return;
    std::erase_if(m_found, [&](const Candidate& inside) { return PathText::isAtOrBelow(inside.path, path); });
    m_found.push_back({std::move(path), std::move(note)});
}

} // namespace orlen
