#include "tools/startup/UnitLinks.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "tools/startup/UnitFile.h"
#include "tools/startup/UnitFolders.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace orlen::UnitLinks {

namespace {

using Names = std::set<std::string, std::less<>>;

bool isLink(const std::string& path)
{
    const auto status = statusOf(path);
    return status.ok() && status.value().type == FileType::link;
}

/// Folders of links to what a unit starts.
std::vector<std::string> startingFolders(const std::vector<std::string>& folders)
{
    std::vector<std::string> starting;
    for (const std::string& folder : folders) {
        for (const std::string& name : listNames(folder + "/.")) {
            if (name.ends_with(".wants") || name.ends_with(".requires") || name.ends_with(".upholds"))
                starting.push_back(PathText::join(folder, name));
        }
    }
    return starting;
}

Names startedUnits(const std::vector<std::string>& folders)
{
    Names started;
    for (const std::string& links : startingFolders(folders)) {
        for (const std::string& unit : listNames(links)) {
            if (isLink(PathText::join(links, unit)))
                started.insert(unit);
        }
    }
    return started;
}

/// Units with further names, which is how some are enabled.
Names renamedUnits(const std::vector<std::string>& folders)
{
    Names renamed;
    for (const std::string& folder : folders) {
        for (const std::string& name : listNames(folder + "/.")) {
            const std::string path = PathText::join(folder, name);
            const std::string target = isLink(path) ? resolved(path) : std::string();
            if (const auto unit = PathText::lastComponent(target); unit != name)
                renamed.emplace(unit);
        }
    }
    return renamed;
}

/// The first file of each unit, by name.
std::map<std::string, std::string> unitFiles(const Places& places)
{
    std::map<std::string, std::string> paths;
    for (const std::string& folder : UnitFolders::all(places)) {
        for (const std::string& name : listNames(folder + "/.")) {
            if (UnitFolders::isUnitName(name))
                paths.emplace(name, PathText::join(folder, name));
        }
    }
    return paths;
}

/// For a unit that nothing starts.
const char* idleState(const std::string& name, const std::string& path, const Places& places)
{
    if (isLink(path))
        return PathText::lastComponent(resolved(path)) == name ? "linked" : "alias";
    const auto unit = UnitFile::read(path, places.home);
    return unit && unit->isInstallable ? "disabled" : "static";
}

} // namespace

std::vector<ListedUnit> listed(const Places& places)
{
    const Names started = startedUnits(UnitFolders::all(places));
    Names startedBySettings = startedUnits(UnitFolders::ofSettings(places));
    startedBySettings.merge(renamedUnits(UnitFolders::ofSettings(places)));
    std::vector<ListedUnit> units;
    for (const auto& [name, path] : unitFiles(places)) {
        std::string state = "masked";
        if (!UnitFolders::isMask(path)) {
            state = idleState(name, path, places);
            // A package may start a unit in a way that nobody chose and that cannot be switched.
            const bool isStarted = started.contains(name) && state != "alias";
            if (startedBySettings.contains(name) || (isStarted && state != "static"))
                state = "enabled";
        }
        units.push_back({name, std::move(state)});
    }
    return units;
}

std::vector<ListedUnit> instances(const Places& places)
{
    const std::vector<std::string> folders = UnitFolders::all(places);
    std::vector<ListedUnit> units;
    for (const std::string& name : startedUnits(UnitFolders::ofSettings(places))) {
        if (!UnitFolders::isUnitName(name) || UnitFolders::partsOf(name).instance.empty())
            continue;
        const auto isMasked = [&](const std::string& folder) {
            return UnitFolders::isMask(PathText::join(folder, name));
        };
        units.push_back({name, std::ranges::any_of(folders, isMasked) ? "masked" : "enabled"});
    }
    return units;
}

std::string firstOf(const Places& places, const std::string& unit)
{
    for (const std::string& folder : startingFolders(UnitFolders::ofSettings(places))) {
        std::string path = PathText::join(folder, unit);
        if (isLink(path))
            return path;
    }
    return {};
}

std::vector<std::string> ofUser(const Places& places, const std::string& unit)
{
    const std::vector<std::string> folders = UnitFolders::ofUser(places);
    std::vector<std::string> links;
    const auto addIfLink = [&](const std::string& path) {
        if (isLink(path))
            links.push_back(path);
    };
    for (const std::string& folder : startingFolders(folders))
        addIfLink(PathText::join(folder, unit));
    const std::string file = resolved(UnitFolders::find(places, unit));
    const auto described = UnitFile::read(file, places.home);
    for (const std::string& alias : described ? described->aliases : std::vector<std::string>()) {
        for (const std::string& folder : folders) {
            const std::string path = PathText::join(folder, alias);
            if (alias != unit && UnitFolders::isUnitName(alias) && resolved(path) == file)
                addIfLink(path);
        }
    }
    return links;
}

bool isStartedForEverybody(const Places& places, const std::string& unit)
{
    std::vector<std::string> folders = UnitFolders::all(places);
    const std::vector<std::string> own = UnitFolders::ofUser(places);
    std::erase_if(folders, [&](const std::string& folder) {
        return std::find(own.begin(), own.end(), folder) != own.end();
    });
    return startedUnits(folders).contains(unit);
}

} // namespace orlen::UnitLinks
