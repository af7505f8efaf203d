#include "platform/files/Places.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Reachability.h"
#include "platform/files/UserDirs.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <pwd.h>
#include <unistd.h>

namespace orlen {

namespace {

using Paths = std::vector<std::string>;

void appendOnce(Paths& paths, std::string path)
{
    if (!path.empty() && std::find(paths.begin(), paths.end(), path) == paths.end())
        paths.push_back(std::move(path));
}

std::string variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string absoluteVariable(const char* name)
{
    const std::string value = variable(name);
    return value.starts_with('/') ? PathText::standardized(value) : std::string();
}

std::string homeFolder(unsigned user)
{
    std::string home = absoluteVariable("HOME");
    // A home folder that does not answer is still the user's: no other is looked for.
    if (!home.empty() && (!Reachability::admit(home).ok() || isListable(home + "/.")))
        return home;
    const passwd* entry = ::getpwuid(user);
    return entry == nullptr || entry->pw_dir == nullptr ? home : PathText::standardized(entry->pw_dir);
}

bool isUsable(const std::string& home, const std::string& resolvedHome, unsigned user)
{
    if (home.empty() || home == "/" || resolvedHome == "/" || !PathText::isValidUtf8(home))
        return false;
    const auto status = statusOf(resolvedHome);
    return status.ok() && status.value().type == FileType::folder && status.value().owner == user;
}

/// Whether the folder belongs to the user and contains the home folder.
bool isPreparedRoot(const std::string& root, const Places& places)
{
    const std::string real = resolved(root);
    const auto status = statusOf(real);
    return real != "/" && real != places.resolvedHome && PathText::isAtOrBelow(places.resolvedHome, real) &&
           status.ok() && status.value().type == FileType::folder && status.value().owner == places.user;
}

void moveSystemInto(const std::string& root, Places& places)
{
    places.systemRoot = root + "/system";
    for (std::string* path : {&places.launchctl, &places.processes})
        path->insert(0, places.systemRoot);
    for (std::string* path : {&places.applications, &places.library})
        path->insert(0, root);
    // Otherwise files outside what was prepared would be moved.
    places.isHomeUsable = places.isHomeUsable && isPreparedRoot(root, places);
}

/// The folder a variable names, in the form rules compare; empty unless it is below the home folder.
std::string folderBelowHome(const char* name, const Places& places)
{
    const std::string named = places.normalized(absoluteVariable(name));
    return named != places.home && PathText::isAtOrBelow(named, places.home) ? named : std::string();
}

/// The user's own folders, configured or default.
Paths ownFolders(const Places& places)
{
    Paths folders = places.userFolders();
    for (const char* name : {"Desktop", "Downloads", "Documents", "Music", "Pictures", "Videos", "Movies",
                             "Templates", "Public"})
        appendOnce(folders, PathText::join(places.home, name));
    return folders;
}

/// Whether a moved folder is one of the user's own, contains one or is inside one: then its contents are the
/// user's, whatever the variable says.
bool meetsOwnFolder(const std::string& path, const Places& places)
{
    Paths spellings{path};
    appendOnce(spellings, places.normalized(resolved(path)));
    const Paths own = ownFolders(places);
    return std::ranges::any_of(spellings, [&](const std::string& spelling) {
        return std::ranges::any_of(own, [&](const std::string& folder) {
            return PathText::isAtOrBelow(spelling, folder) || PathText::isAtOrBelow(folder, spelling);
        });
    });
}

/// The folder a variable names, if below the home folder, then the default.
Paths baseFolders(const char* name, const Places& places, std::string_view standard)
{
    Paths folders;
    const std::string moved = folderBelowHome(name, places);
    // In a sandbox the variables name the sandbox's folders, not the user's.
    if (!moved.empty() && !exists(places.systemRoot + "/.flatpak-info") && !meetsOwnFolder(moved, places))
        appendOnce(folders, moved);
    appendOnce(folders, PathText::join(places.home, standard));
    return folders;
}

/// The absolute folders of a colon-separated list.
Paths folderList(const char* name)
{
    Paths folders;
    const std::string list = variable(name);
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t colon = std::min(list.find(':', start), list.size());
        if (list[start] == '/')
            appendOnce(folders, PathText::standardized(list.substr(start, colon - start)));
        start = colon + 1;
    }
    return folders;
}

void readSharedFolders(Places& places)
{
    appendOnce(places.sharedConfigs, places.systemRoot + "/etc/xdg");
    for (std::string& folder : folderList("XDG_CONFIG_DIRS"))
        appendOnce(places.sharedConfigs, std::move(folder));
    places.sharedData = folderList("XDG_DATA_DIRS");
    if (places.sharedData.empty())
        places.sharedData = {places.systemRoot + "/usr/local/share", places.systemRoot + "/usr/share"};
}

/// "de_AT" for "de_AT.UTF-8@euro"; nothing for locales without a language.
std::optional<std::string> languageTag(std::string locale)
{
    locale = locale.substr(0, locale.find_first_of(".@"));
    if (locale.empty() || locale == "C" || locale == "POSIX")
        return std::nullopt;
    return locale;
}

Paths preferredLanguages()
{
    Paths tags;
    std::string list = variable("LANGUAGE");
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (list.empty())
            list = variable(name);
    }
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t colon = std::min(list.find(':', start), list.size());
        if (const auto tag = languageTag(list.substr(start, colon - start)))
            appendOnce(tags, *tag);
        start = colon + 1;
    }
    return tags;
}

void readUserFolders(Places& places)
{
    constexpr std::size_t kLimit = 64UL * 1024;
    std::map<std::string, std::string> folders;
    for (const std::string& config : places.configs) {
        (void)Reachability::admit(config);
        if (const auto text = readSmallFile(config + "/user-dirs.dirs", kLimit)) {
            folders = UserDirs::parse(*text, places.home);
            // Entries may contain the resolved home folder.
            for (const auto& [key, folder] : UserDirs::parse(*text, places.resolvedHome))
                folders.emplace(key, places.normalized(folder));
            break;
        }
    }
    const auto take = [&](const char* key) {
        const std::string folder = folders[key];
        return !folder.empty() && isListable(folder) ? folder : std::string();
    };
    places.desktop = take("DESKTOP");
    places.downloads = take("DOWNLOAD");
    places.documents = take("DOCUMENTS");
    places.music = take("MUSIC");
    places.pictures = take("PICTURES");
    places.videos = take("VIDEOS");
    places.templates = take("TEMPLATES");
    places.publicShare = take("PUBLICSHARE");
}

/// The paths in a list of game libraries, whose lines are of the form `"path"  "/home/user/Games"`.
Paths namedLibraries(const std::string& list)
{
    constexpr std::string_view kKey = "\"path\"";
    Paths paths;
    for (std::size_t at = list.find(kKey); at != std::string::npos; at = list.find(kKey, at)) {
        at += kKey.size();
        const std::size_t open = list.find('"', at);
        const std::size_t close = open == std::string::npos ? open : list.find('"', open + 1);
        if (close == std::string::npos)
            break;
        const std::string path = list.substr(open + 1, close - open - 1);
        if (path.starts_with('/'))
            appendOnce(paths, PathText::standardized(path));
        at = close;
    }
    return paths;
}

Paths steamFolders(const Places& places)
{
    constexpr std::size_t kLimit = 64UL * 1024;
    Paths folders;
    for (const std::string& data : places.data)
        appendOnce(folders, data + "/Steam");
    for (const char* folder :
         {"/.var/app/com.valvesoftware.Steam/.local/share/Steam", "/snap/steam/common/.local/share/Steam"})
        appendOnce(folders, places.home + folder);
    // Usually links to the one above.
    for (const char* folder : {"/.steam/debian-installation", "/.steam/steam"}) {
        if (isRealFolder(places.home + folder))
            appendOnce(folders, places.home + folder);
    }
    const Paths installed = folders;
    for (const std::string& folder : installed) {
        const auto list = readSmallFile(folder + "/steamapps/libraryfolders.vdf", kLimit);
        for (const std::string& library : namedLibraries(list.value_or(""))) {
            const std::string path = places.normalized(library);
            if (path != places.home && PathText::isAtOrBelow(path, places.home))
                appendOnce(folders, path);
        }
    }
    return folders;
}

Paths foldersOf(const Places& p, std::string_view word)
{
    if (word == "H")
        return {p.home};
    if (word == "CACHE")
        return p.caches;
    if (word == "CONFIG")
        return p.configs;
    if (word == "DATA")
        return p.data;
    if (word == "STATE")
        return p.states;
    if (word == "STEAM")
        return p.steam;
    const std::pair<std::string_view, const std::string*> singles[] = {
        {"AVD", &p.androidDevices},  {"APPLICATIONS", &p.applications}, {"LIBRARY", &p.library},
        {"DESKTOP", &p.desktop},     {"DOWNLOAD", &p.downloads},        {"DOCUMENTS", &p.documents},
        {"MUSIC", &p.music},         {"PICTURES", &p.pictures},         {"VIDEOS", &p.videos},
        {"TEMPLATES", &p.templates}, {"PUBLICSHARE", &p.publicShare},
    };
    for (const auto& [name, folder] : singles) {
        if (word == name)
            return folder->empty() ? Paths{} : Paths{*folder};
    }
    return {};
}

std::mutex currentLock;
std::optional<Places>& currentSlot()
{
    static std::optional<Places> slot;
    return slot;
}

} // namespace

std::vector<std::string> Places::userFolders() const
{
    Paths folders;
    for (const std::string* folder :
         {&desktop, &downloads, &documents, &music, &pictures, &videos, &templates, &publicShare})
        appendOnce(folders, *folder);
    return folders;
}

std::vector<std::string> Places::expand(std::string_view pattern) const
{
    std::string rest(pattern);
    constexpr std::string_view kUser = "{UID}";
    if (const std::size_t at = rest.find(kUser); at != std::string::npos)
        rest.replace(at, kUser.size(), std::to_string(user));
    if (!rest.starts_with('{'))
        return {rest};
    const std::size_t close = rest.find('}');
    const std::string word = rest.substr(1, close - 1);
    rest.erase(0, close + 1);
    if (word == "ROOT")
        return {systemRoot + rest};
    Paths paths;
    for (const std::string& folder : foldersOf(*this, word))
        appendOnce(paths, folder + rest);
    return paths;
}

std::string Places::normalized(std::string_view path) const
{
    std::string text = PathText::standardized(path);
    if (resolvedHome != home && !resolvedHome.empty() && PathText::isAtOrBelow(text, resolvedHome))
        text.replace(0, resolvedHome.size(), home);
    return text;
}

Places Places::fromEnvironment()
{
    Places places;
    places.user = ::geteuid();
    Reachability::refresh(places.mountTable, {});
    places.home = homeFolder(places.user);
    places.isHomeSilent = !places.home.empty() && !Reachability::admit(places.home).ok();
    places.resolvedHome = resolved(places.home);
    Reachability::refresh(places.mountTable, places.resolvedHome);
    places.isHomeUsable = isUsable(places.home, places.resolvedHome, places.user);
    if (const std::string root = absoluteVariable("ORLEN_PREPARED_ROOT"); !root.empty())
        moveSystemInto(root, places);
    places.configs = baseFolders("XDG_CONFIG_HOME", places, ".config");
    readUserFolders(places);
    // Again, now that the user's own folders are known.
    places.configs = baseFolders("XDG_CONFIG_HOME", places, ".config");
    places.caches = baseFolders("XDG_CACHE_HOME", places, ".cache");
    places.data = baseFolders("XDG_DATA_HOME", places, ".local/share");
    places.states = baseFolders("XDG_STATE_HOME", places, ".local/state");
    places.steam = steamFolders(places);
    places.androidDevices = folderBelowHome("ANDROID_AVD_HOME", places);
    readSharedFolders(places);
    for (const Paths* folders : {&places.configs, &places.data})
        Reachability::askAhead(folders->front());
    places.languages = preferredLanguages();
    return places;
}

const Places& Places::current()
{
    const std::lock_guard lock(currentLock);
    auto& slot = currentSlot();
    if (!slot)
        slot = fromEnvironment();
    return *slot;
}

void Places::setCurrent(Places places)
{
    Reachability::refresh(places.mountTable, places.resolvedHome);
    const std::lock_guard lock(currentLock);
    currentSlot() = std::move(places);
}

} // namespace orlen
