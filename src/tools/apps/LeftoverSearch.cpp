#include "tools/apps/LeftoverSearch.h"

#include "clean/Safety.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/mac/PropertyList.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "tools/apps/Flatpaks.h"
#include "tools/apps/FolderLook.h"
#include "tools/apps/Launcher.h"
#include "tools/apps/Leftovers.h"
#include "tools/apps/RemainingApps.h"
#include "tools/apps/WrapperScript.h"
#include "tools/startup/UnitFile.h"

#include <algorithm>

namespace orlen {

namespace {

using Kind = LeftoverRules::Kind;
using Match = LeftoverRules::Match;

Text noteOf(const LeftoverRoot& root, Match match)
{
    switch (root.kind) {
    case Kind::library:
    case Kind::namedLibrary:
    case Kind::agents:
        return root.label;
    case Kind::settings:
    case Kind::configs:
    case Kind::home:
    case Kind::container:
    case Kind::metadata:
    case Kind::launchers:
    case Kind::units:
    case Kind::links:
        break;
    }
    return match == Match::nameOnly ? Leftovers::kByNameOnly : Text();
}

} // namespace

LeftoverSearch::LeftoverSearch(LeftoverRules::Subject subject, const RemainingApps& remaining,
                               const AppInfo* app)
    : m_subject(std::move(subject)), m_remaining(remaining), m_app(app)
{
}

std::vector<Leftover> LeftoverSearch::run(const std::stop_token& stop)
{
    m_found.clear();
    for (const LeftoverRoot& root : LeftoverRoots::all()) {
        if (stop.stop_requested())
            return {};
        lookInto(root);
    }
    if (m_app != nullptr && m_app->source == AppSource::appImage)
        lookBeside(m_app->path);
    lookForIcon();
    std::vector<std::string> paths;
    for (const Candidate& candidate : m_found)
        paths.push_back(candidate.path);
    std::vector<FileEntry> entries = FS::entries(paths, {}, stop);
    std::vector<Leftover> leftovers;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!m_found[i].note.empty())
            entries[i].notes = {m_found[i].note};
        leftovers.push_back({std::move(entries[i]), m_found[i].isByNameOnly});
    }
    return leftovers;
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
            offer({PathText::join(root.folder, name), noteOf(root, match),
                   match == Match::nameOnly && root.kind != Kind::namedLibrary, root.kind == Kind::links});
    }
}

void LeftoverSearch::lookBeside(const std::string& image)
{
    for (const std::string_view suffix : LeftoverRoots::kPortableSuffixes)
        offer({image + std::string(suffix), {}});
}

/// A manager keeps the icon beside the application, where no root is.
void LeftoverSearch::lookForIcon()
{
    if (m_app == nullptr || !m_app->icon.starts_with('/'))
        return;
    const std::string icon = Places::current().normalized(m_app->icon);
    if (PathText::parent(icon) == PathText::join(PathText::parent(m_app->path), LeftoverRoots::kIconFolder))
        offer({icon, {}});
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
                       (root.kind == Kind::units && isUnit(path)) ||
                       (root.kind == Kind::links && isLinkToApp(path)) ||
                       (root.kind == Kind::metadata && isManagersIcon(name));
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
    if (m_app == nullptr || PathText::extension(path) != "service")
        return false;
    const auto unit = UnitFile::read(path, Places::current().home);
    if (!unit || !unit->program.starts_with('/'))
        return false;
    const std::string wrapped = WrapperScript::target(resolved(unit->program));
    return isApps(unit->program) || (!wrapped.empty() && isApps(wrapped));
}

/// Leads nowhere once the application is gone.
bool LeftoverSearch::isLinkToApp(const std::string& path) const
{
    if (m_app == nullptr)
        return false;
    const auto end = linkEnd(path);
    return end.ok() && end.value() != path && isApps(end.value());
}

bool LeftoverSearch::isManagersIcon(const std::string& name) const
{
    if (m_app == nullptr)
        return false;
    return std::any_of(m_app->launchers.begin(), m_app->launchers.end(), [&](const std::string& launcher) {
        const std::string_view prefix = Launcher::iconPrefix(launcher);
        return !prefix.empty() && name.starts_with(prefix) &&
               (name.size() == prefix.size() || name.find_first_of("_-.", prefix.size()) == prefix.size());
    });
}

/// Whether the path is the application or lies inside it, with or without links resolved.
bool LeftoverSearch::isApps(const std::string& program) const
{
    const Places& places = Places::current();
    const std::string target = resolved(program);
    return PathText::isAtOrBelow(places.normalized(program), m_app->path) ||
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

/// Every candidate passes through here. Links are kept unless they are programs: their targets are elsewhere.
void LeftoverSearch::offer(Candidate candidate)
{
    const std::string& path = candidate.path;
    const auto status = statusOf(path);
    if (!status.ok() || (status.value().type == FileType::link) != candidate.isLink ||
        Safety::isProtected(path) || m_remaining.lieIn(path) || overlapsApp(path) || isOffered(path))
        return;
    // A name alone is too little to offer saved games and the like.
    if (candidate.isByNameOnly && FolderLook::at(path, {}).isPersonal)
        return;
    std::erase_if(m_found, [&](const Candidate& inside) { return PathText::isAtOrBelow(inside.path, path); });
    m_found.push_back(std::move(candidate));
}

} // namespace orlen
