#include "platform/desktop/DesktopEntry.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/ScanTexts.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/AutostartFolders.h"
#include "tools/startup/AutostartRules.h"
#include "tools/startup/AutostartSwitch.h"
#include "tools/startup/DesktopNames.h"
#include "tools/startup/ServiceManager.h"
#include "tools/startup/SessionUnitName.h"
#include "tools/startup/Systemctl.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string_view>

namespace orlen {

namespace {

constexpr std::string_view kEntrySuffix = ".desktop";

/// The file in effect for each name: the first in folder order.
std::map<std::string, std::string> entryFiles(const Places& places)
{
    std::map<std::string, std::string> files;
    std::vector<std::string> folders = AutostartFolders::ofUser(places);
    for (std::string& folder : AutostartFolders::ofEverybody(places))
        folders.push_back(std::move(folder));
    for (const std::string& folder : folders) {
        for (const std::string& name : listNames(folder + "/.")) {
            if (name.size() > kEntrySuffix.size() && name.ends_with(kEntrySuffix))
                files.emplace(name, PathText::join(folder, name));
        }
    }
    return files;
}

std::optional<LaunchItem> itemOf(const std::string& name, const std::string& path, const Places& places)
{
    const auto entry = DesktopEntry::read(resolved(path));
    if (!entry || !AutostartRules::isForUser(*entry))
        return std::nullopt;
    LaunchItem item;
    item.label = name.substr(0, name.size() - kEntrySuffix.size());
    // An override made by this program is just the switch of the entry it hides.
    item.path = AutostartRules::isOverride(*entry)
                    ? AutostartFolders::find(AutostartFolders::ofEverybody(places), name)
                    : path;
    if (item.path.empty())
        return std::nullopt;
    const std::vector<std::string> command = entry->command("Exec");
    item.program = command.empty() ? std::string() : command.front();
    item.command = entry->text("Exec");
    const bool isOwn = PathText::isAtOrBelow(item.path, places.home);
    item.scope = isOwn ? ToolsTexts::kYourAccount : ToolsTexts::kAllUsers;
    item.enabled = AutostartRules::isEnabled(*entry);
    item.source = LaunchSource::autostartEntry;
    item.name = entry->localizedText("Name", places.languages);
    if (item.name.empty())
        item.name = item.label;
    item.isPartOfDesktop = !isOwn && DesktopNames::isPartOfDesktop(item.label);
    item.description = entry->localizedText("Comment", places.languages);
    if (const std::string id = entry->text("X-Flatpak"); !id.empty())
        item.origin = {ScanTexts::kFlatpakApp, {{"name", id}}};
    else if (const std::string snap = entry->text("X-SnapInstanceName"); !snap.empty())
        item.origin = {ScanTexts::kSnapApp, {{"name", snap}}};
    if (const Text why = AutostartSwitch::obstacle(name); !why.empty())
        item.forbid(why);
    return item;
}

/// Stops what the session's systemd started from the entry; what others started keeps running.
void stop(const std::string& label)
{
    const std::string unit = SessionUnitName::ofEntry(label);
    if (Systemctl::isInstalled() && Systemctl::call({"is-active", "--quiet", unit}))
        Systemctl::call({"stop", unit});
}

class AutostartEntries final : public ServiceManager {
public:
    [[nodiscard]] std::vector<LaunchItem> items() const override
    {
        const Places& places = Places::current();
        std::vector<LaunchItem> items;
        for (const auto& [name, path] : entryFiles(places)) {
            if (auto item = itemOf(name, path, places))
                items.push_back(*std::move(item));
        }
        std::stable_partition(items.begin(), items.end(),
                              [](const LaunchItem& item) { return item.scope == ToolsTexts::kYourAccount; });
        return items;
    }

    [[nodiscard]] bool set(const LaunchItem& item, bool enabled) const override
    {
        if (item.label.empty() || item.label.find('/') != std::string::npos)
            return false;
        const std::string name = item.label + std::string(kEntrySuffix);
        if (enabled)
            return AutostartSwitch::turnOn(name);
        if (!AutostartSwitch::turnOff(name))
            return false;
        stop(item.label);
        return true;
    }
};

} // namespace

std::unique_ptr<ServiceManager> makeAutostartEntries()
{
    return std::make_unique<AutostartEntries>();
}

} // namespace orlen
