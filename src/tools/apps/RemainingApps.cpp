#include "tools/apps/RemainingApps.h"

#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/Launchers.h"
#include "tools/apps/LeftoverRules.h"
#include "tools/apps/WrapperScript.h"

#include <algorithm>

namespace orlen {

namespace {

/// Every AppImage contains one of that name.
constexpr std::string_view kCommonProgram = "AppRun";

} // namespace

RemainingApps RemainingApps::all(const std::stop_token& stop)
{
    RemainingApps remaining;
    for (const Launcher& launcher : Launchers::ofSystem(stop))
        remaining.add(launcher);
    return remaining;
}

RemainingApps RemainingApps::without(const AppInfo& app, std::span<const AppInfo> listed,
                                     const std::stop_token& stop)
{
    RemainingApps remaining;
    remaining.m_app = app.path;
    for (const Launcher& launcher : Launchers::ofSystem(stop)) {
        if (!launcher.starts(app.path))
            remaining.add(launcher);
    }
    // Launchers of an older copy often stay behind; ignore those whose program is gone.
    for (const Launcher& launcher : Launchers::ofUser()) {
        if (!launcher.starts(app.path) && launcher.isProgramThere())
            remaining.add(launcher);
    }
    for (const AppInfo& other : listed) {
        if (other.path != app.path && other.source != AppSource::removedFlatpak)
            remaining.add(other);
    }
    return remaining;
}

bool RemainingApps::hasAnyOf(const std::vector<std::string>& words) const
{
    return std::any_of(words.begin(), words.end(),
                       [&](const std::string& word) { return m_words.contains(word); });
}

bool RemainingApps::hasProgram(const std::string& name) const
{
    const Places& places = Places::current();
    for (const std::string& folder : {places.systemRoot + "/usr/local/bin", places.systemRoot + "/usr/bin",
                                      places.systemRoot + "/usr/games", places.systemRoot + "/snap/bin",
                                      places.home + "/.local/bin", places.home + "/bin"}) {
        const std::string program = resolved(PathText::join(folder, name));
        if (!program.empty() && !isAppItself(program) && !isAppItself(WrapperScript::target(program)))
            return true;
    }
    return false;
}

/// Whether the program is the application left out, or a part of it.
bool RemainingApps::isAppItself(const std::string& program) const
{
    const Places& places = Places::current();
    return !m_app.empty() && !program.empty() &&
           (PathText::isAtOrBelow(places.normalized(program), m_app) ||
            PathText::isAtOrBelow(places.normalized(resolved(program)), m_app));
}

bool RemainingApps::claims(std::string_view entry, std::string_view identifier) const
{
    return std::any_of(m_identifiers.begin(), m_identifiers.end(), [&](const std::string& other) {
        return other.size() > identifier.size() && LeftoverRules::isNamedAfter(entry, other);
    });
}

bool RemainingApps::lieIn(std::string_view path) const
{
    return std::any_of(m_paths.begin(), m_paths.end(),
                       [&](const std::string& app) { return PathText::isAtOrBelow(app, path); });
}

void RemainingApps::add(const Launcher& launcher)
{
    addWords(launcher.name);
    addWords(launcher.plainName);
    addWords(launcher.windowClass);
    addWords(launcher.stem);
    addIdentifier(launcher.identifier);
    for (const std::string& program : launcher.programs) {
        const std::string_view name = PathText::lastComponent(program);
        if (name != kCommonProgram)
            addWords(name);
    }
}

void RemainingApps::add(const AppInfo& app)
{
    addWords(app.name);
    addWords(PathText::lastComponent(app.path));
    addIdentifier(app.bundleID);
    m_paths.push_back(app.path);
}

void RemainingApps::addWords(std::string_view name)
{
    for (std::string& form : AppNames::forms(name))
        m_words.insert(std::move(form));
}

void RemainingApps::addIdentifier(std::string_view identifier)
{
    if (!AppNames::isIdentifier(identifier))
        return;
    m_identifiers.insert(LanguageTools::lowerCase(identifier));
    addWords(identifier);
    addWords(AppNames::lastPart(identifier));
}

} // namespace orlen
