#include "tools/apps/LeftoverRoots.h"

#include "platform/files/Places.h"
#include "scan/locations/Glob.h"
#include "tools/ToolsTexts.h"

namespace orlen::LeftoverRoots {

namespace {

using Kind = LeftoverRules::Kind;

struct Row {
    std::string_view pattern; ///< a word of `Places::expand` and what is below it
    Text label;
    Kind kind;
};

constexpr Row kRows[] = {
    {"{H}/Library/Preferences", ToolsTexts::kPreferences, Kind::library},
    {"{H}/Library/Application Support", ToolsTexts::kApplicationSupport, Kind::namedLibrary},
    {"{H}/Library/Caches", ToolsTexts::kCaches, Kind::namedLibrary},
    {"{H}/Library/Containers", ToolsTexts::kContainers, Kind::library},
    {"{H}/Library/Group Containers", ToolsTexts::kContainers, Kind::library},
    {"{H}/Library/Saved Application State", ToolsTexts::kSavedState, Kind::library},
    {"{H}/Library/Logs", ToolsTexts::kLogs, Kind::namedLibrary},
    {"{H}/Library/HTTPStorages", ToolsTexts::kNetworkStorage, Kind::library},
    {"{H}/Library/WebKit", ToolsTexts::kWebData, Kind::library},
    {"{H}/Library/Cookies", ToolsTexts::kCookies, Kind::library},
    {"{H}/Library/LaunchAgents", ToolsTexts::kLaunchAgents, Kind::agents},
    {"{H}/Library/Application Scripts", ToolsTexts::kScripts, Kind::library},
    {"{LIBRARY}/LaunchAgents", ToolsTexts::kLaunchAgents, Kind::agents},
    {"{LIBRARY}/Application Support", ToolsTexts::kApplicationSupport, Kind::library},
    {"{LIBRARY}/Preferences", ToolsTexts::kPreferences, Kind::library},
    {"{CONFIG}", ToolsTexts::kPreferences, Kind::configs},
    {"{DATA}", ToolsTexts::kApplicationSupport, Kind::settings},
    {"{CACHE}", ToolsTexts::kCaches, Kind::settings},
    {"{STATE}", ToolsTexts::kSavedState, Kind::settings},
    {"{H}/.var/app", ToolsTexts::kContainers, Kind::container},
    {"{CONFIG}/autostart", ToolsTexts::kLaunchAgents, Kind::launchers},
    {"{DATA}/applications", ToolsTexts::kLaunchers, Kind::launchers},
    {"{H}/Desktop", ToolsTexts::kLaunchers, Kind::launchers},
    {"{DESKTOP}", ToolsTexts::kLaunchers, Kind::launchers},
    {"{H}/.local/bin", ToolsTexts::kLaunchers, Kind::links},
    {"{H}/bin", ToolsTexts::kLaunchers, Kind::links},
    {"{CONFIG}/systemd/user", ToolsTexts::kLaunchAgents, Kind::units},
    {"{DATA}/icons/hicolor/*/apps", ToolsTexts::kIconsAndMetadata, Kind::metadata},
    {"{DATA}/metainfo", ToolsTexts::kIconsAndMetadata, Kind::metadata},
    {"{DATA}/appdata", ToolsTexts::kIconsAndMetadata, Kind::metadata},
    {"{DATA}/mime/packages", ToolsTexts::kIconsAndMetadata, Kind::metadata},
    {"{H}", ToolsTexts::kPreferences, Kind::home},
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
