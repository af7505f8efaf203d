#include "tools/apps/UnitShutdown.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/LaunchControl.h"
#include "tools/startup/Systemctl.h"
#include "tools/startup/UnitFolders.h"

#include <algorithm>

namespace orlen::UnitShutdown {

namespace {

bool isUnit(const std::string& path, const std::vector<std::string>& folders)
{
    return std::find(folders.begin(), folders.end(), PathText::parent(path)) != folders.end() &&
           UnitFolders::isUnitName(PathText::lastComponent(path));
}

/// Whether it worked.
bool switchOff(const std::string& path)
{
    LaunchItem item;
    item.label = PathText::lastComponent(path);
    item.path = path;
    item.scope = ToolsTexts::kYourAccount;
    item.source = LaunchSource::systemdUnit;
    const bool isDisabled = LaunchControl::set(item, false);
    return isDisabled && !Systemctl::call({"is-active", "--quiet", item.label});
}

} // namespace

std::vector<std::string> run(std::span<const FileEntry> entries)
{
    const std::vector<std::string> folders = UnitFolders::ofUser(Places::current());
    std::vector<std::string> left;
    for (const FileEntry& entry : entries) {
        // Without systemd the file is never read.
        if (isUnit(entry.path, folders) && Systemctl::isInstalled() && !switchOff(entry.path))
            left.emplace_back(PathText::lastComponent(entry.path));
    }
    return left;
}

} // namespace orlen::UnitShutdown
