#include "tools/apps/LeftoverRoots.h"

#include "platform/files/Places.h"
#include "scan/locations/Glob.h"

namespace orlen::LeftoverRoots {

namespace {

using Kind = LeftoverRules::Kind;

struct Row {
    std::string_view pattern; ///< a word of `Places::expand` and what is below it
    std::string_view label;
    Kind kind;
};

constexpr Row kRows[] = {
    {"{H}/Library/Preferences", "Preferences", Kind::library},
    {"{H}/Library/Application Support", "Application Support", Kind::namedLibrary},
    {"{H}/Library/Caches", "Caches", Kind::namedLibrary},
    {"{H}/Library/Containers", "Containers", Kind::library},
    {"{H}/Library/Group Containers", "Containers", Kind::library},
    {"{H}/Library/Saved Application State", "Saved state", Kind::library},
    {"{H}/Library/Logs", "Logs", Kind::namedLibrary},
    {"{H}/Library/HTTPStorages", "Network storage", Kind::library},
    {"{H}/Library/WebKit", "Web data", Kind::library},
    {"{H}/Library/Cookies", "Cookies", Kind::library},
    {"{H}/Library/LaunchAgents", "Launch Agents", Kind::agents},
    {"{H}/Library/Application Scripts", "Scripts", Kind::library},
    {"{LIBRARY}/LaunchAgents", "Launch Agents", Kind::agents},
    {"{LIBRARY}/Application Support", "Application Support", Kind::library},
    {"{LIBRARY}/Preferences", "Preferences", Kind::library},
    {"{CONFIG}", "Preferences", Kind::configs},
    {"{DATA}", "Application Support", Kind::settings},
    {"{CACHE}", "Caches", Kind::settings},
    {"{STATE}", "Saved state", Kind::settings},
    {"{H}/.var/app", "Containers", Kind::container},
    {"{CONFIG}/autostart", "Launch Agents", Kind::launchers},
    {"{DATA}/applications", "Launchers", Kind::launchers},
    {"{H}/Desktop", "Launchers", Kind::launchers},
    {"{DESKTOP}", "Launchers", Kind::launchers},
    {"{H}/.local/bin", "Launchers", Kind::links},
    {"{H}/bin", "Launchers", Kind::links},
    {"{CONFIG}/systemd/user", "Launch Agents", Kind::units},
    {"{DATA}/icons/hicolor/*/apps", "Icons and metadata", Kind::metadata},
    {"{DATA}/metainfo", "Icons and metadata", Kind::metadata},
    {"{DATA}/appdata", "Icons and metadata", Kind::metadata},
    {"{DATA}/mime/packages", "Icons and metadata", Kind::metadata},
    {"{H}", "Preferences", Kind::home},
};

} // namespace

std::vector<LeftoverRoot> all()
{
    const Places& places = Places::current();
    std::vector<LeftoverRoot> roots;
    for (const Row& row : kRows) {
        const std::size_t wordEnd = row.pattern.find('}') + 1;
        for (const std::string& folder : places.expand(row.pattern.substr(0, wordEnd))) {
            for (Glob::Match& match : Glob::paths(folder, row.pattern.substr(wordEnd)))
                roots.push_back({std::move(match.path), row.label, row.kind});
        }
    }
    return roots;
}

} // namespace orlen::LeftoverRoots
