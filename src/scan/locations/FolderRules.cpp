#include "scan/locations/FolderRules.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/RunningPrograms.h"
#include "platform/text/PathText.h"
#include "scan/locations/EntryRules.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <set>
#include <sstream>
#include <string_view>
#include <vector>

namespace orlen::FolderRules {

namespace {

constexpr std::size_t kSmallText = 65'536;

bool holds(const std::string& folder, std::string_view name)
{
    return exists(PathText::join(folder, name));
}

template <std::size_t N>
bool holdsAny(const std::string& folder, const std::array<std::string_view, N>& names)
{
    return std::ranges::any_of(names, [&](std::string_view name) { return holds(folder, name); });
}

bool isHexadecimal(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](unsigned char c) { return std::isxdigit(c) != 0; });
}

/// 40 digits, or since 2018 eight, a dash and sixteen.
bool isDeviceIdentifier(std::string_view name)
{
    constexpr std::size_t kOld = 40;
    constexpr std::size_t kChip = 8;
    constexpr std::size_t kUnit = 16;
    if (name.size() == kOld)
        return isHexadecimal(name);
    return name.size() == kChip + 1 + kUnit && name[kChip] == '-' && isHexadecimal(name.substr(0, kChip)) &&
           isHexadecimal(name.substr(kChip + 1));
}

/// Counts down the entries that may still be looked at.
bool areOnlyLogs(const std::string& folder, int& budget)
{
    for (const std::string& name : listNames(folder)) {
        const std::string path = PathText::join(folder, name);
        const auto status = statusOf(path);
        if (--budget < 0 || !status.ok())
            return false;
        if (status.value().type == FileType::folder && !areOnlyLogs(path, budget))
            return false;
        if (status.value().type == FileType::regular && !EntryRules::isLogName(name))
            return false;
    }
    return true;
}

bool isProgram(const std::string& path)
{
    constexpr std::uint32_t kExecutable = 0111;
    const auto status = statusOf(path);
    return status.ok() && status.value().type == FileType::regular &&
           (status.value().mode & kExecutable) != 0;
}

/// Whether it is certain that nothing is there: the nearest folder above that exists is in use. An empty one
/// may be where a disk is mounted at other times.
bool isGone(const std::string& path, const std::string& home)
{
    if (exists(path))
        return false;
    std::string above(PathText::parent(path));
    while (above != home && !exists(above))
        above = std::string(PathText::parent(above));
    return above == home || !listNames(above).empty();
}

bool isRunFrom(const std::string& folder)
{
    const std::string real = resolved(folder);
    return std::ranges::any_of(RunningPrograms::executables(), [&](const std::string& program) {
        return PathText::isAtOrBelow(program, real);
    });
}

/// The folders with packages: "lib/python3.11/site-packages".
std::vector<std::string> packageFolders(const std::string& environment)
{
    std::vector<std::string> folders;
    const std::string lib = environment + "/lib";
    for (const std::string& name : listNames(lib)) {
        std::string folder = PathText::join(lib, name) + "/site-packages";
        if (name.starts_with("python") && isRealFolder(folder))
            folders.push_back(std::move(folder));
    }
    return folders;
}

/// Absolute folders below the home folder that the packages' path files name, one a line.
std::set<std::string> namedFolders(const std::string& environment)
{
    std::set<std::string> named;
    for (const std::string& packages : packageFolders(environment)) {
        for (const std::string& name : listNames(packages)) {
            if (!name.ends_with(".pth"))
                continue;
            std::istringstream lines(readSmallFile(PathText::join(packages, name), kSmallText).value_or(""));
            for (std::string line; std::getline(lines, line);) {
                if (line.starts_with('/'))
                    named.insert(PathText::standardized(line));
            }
        }
    }
    return named;
}

/// The folder of the project an environment was made for; empty if it does not say, or names several.
std::string projectOf(const std::string& environment)
{
    if (const auto text = readSmallFile(environment + "/.project", kSmallText)) {
        const std::string line = text->substr(0, text->find_first_of("\r\n"));
        return line.starts_with('/') ? PathText::standardized(line) : std::string();
    }
    const std::set<std::string> named = namedFolders(environment);
    return named.size() == 1 ? *named.begin() : std::string();
}

} // namespace

bool isTaggedCache(const std::string& folder)
{
    return WalkRules::natureOf(folder) == WalkRules::FolderNature::taggedCache;
}

bool holdsWebView(const std::string& folder)
{
    static constexpr std::array<std::string_view, 5> kMarkers{
        "Local State", "Preferences", "Network Persistent State", "Local Storage", "Session Storage"};
    return holdsAny(folder, kMarkers);
}

bool holdsWebKitCache(const std::string& folder)
{
    return isRealFolder(folder + "/WebKitCache");
}

bool isDeviceBackup(const std::string& folder)
{
    if (!isDeviceIdentifier(PathText::lastComponent(folder)) || !isRealFolder(folder))
        return false;
    const bool hasManifest =
        holds(folder, "Manifest.plist") && (holds(folder, "Manifest.db") || holds(folder, "Manifest.mbdb"));
    return hasManifest || (holds(folder, "Info.plist") && holds(folder, "Status.plist"));
}

bool isIdleVirtualDevice(const std::string& folder)
{
    return isRealFolder(folder) && !holds(folder, "hardware-qemu.ini.lock");
}

bool holdsOnlyLogs(const std::string& folder)
{
    int budget = 4'000;
    return isRealFolder(folder) && areOnlyLogs(folder, budget);
}

bool isSelfContainedApp(const std::string& folder)
{
    if (isProgram(folder + "/AppRun"))
        return true;
    const std::string own = PathText::asciiLower(PathText::lastComponent(folder));
    for (const std::string& inside : {folder, folder + "/bin"}) {
        for (const std::string& name : listNames(inside)) {
            if (PathText::asciiLower(name) == own && isProgram(PathText::join(inside, name)))
                return true;
        }
    }
    return false;
}

bool isOlderBuild(const std::string& folder)
{
    const auto own = statusOf(folder);
    if (!own.ok() || own.value().type != FileType::folder || isRunFrom(folder))
        return false;
    const std::string parent(PathText::parent(folder));
    return std::ranges::any_of(listNames(parent), [&](const std::string& name) {
        const auto other = statusOf(PathText::join(parent, name));
        return other.ok() && other.value().type == FileType::folder &&
               other.value().modified > own.value().modified;
    });
}

bool isEnvironmentOfGoneProject(const std::string& folder)
{
    if (!isRealFolder(folder))
        return false;
    const std::string& home = Places::current().home;
    const std::string project = Places::current().normalized(projectOf(folder));
    return project != home && PathText::isAtOrBelow(project, home) && isGone(project, home);
}

bool isSteamIdle(const std::string& /*path*/)
{
    return std::ranges::none_of(RunningPrograms::executables(), [](const std::string& program) {
        return PathText::lastComponent(program) == "steam";
    });
}

} // namespace orlen::FolderRules
