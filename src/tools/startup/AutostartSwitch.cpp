#include "tools/startup/AutostartSwitch.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/AutostartFolders.h"
#include "tools/startup/AutostartRules.h"
#include "tools/startup/DesktopEntryEdit.h"
#include "tools/startup/OwnFolder.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace orlen::AutostartSwitch {

namespace {

using DesktopEntryEdit::Setting;

constexpr unsigned kFolderMode = 0700;
constexpr unsigned kFileMode = 0644;

/// Nothing if the change would not take effect.
std::optional<std::string> edited(const std::string& text, std::span<const Setting> settings)
{
    auto changed = DesktopEntryEdit::withSettings(text, settings);
    const auto entry = changed ? DesktopEntry::parsed(*changed) : std::nullopt;
    const bool isEffective = entry && changed->size() <= DesktopEntry::kSizeLimit &&
                             std::all_of(settings.begin(), settings.end(), [&](const Setting& setting) {
                                 return entry->text(setting.key) == setting.value;
                             });
    return isEffective ? changed : std::nullopt;
}

/// Whether the user's own entry has these settings now.
bool editOwn(const std::string& path, std::span<const Setting> settings)
{
    const auto status = statusOf(path);
    const bool isOwn = status.ok() && status.value().type == FileType::regular &&
                       status.value().owner == Places::current().user;
    const auto text = isOwn ? readSmallFile(path, DesktopEntry::kSizeLimit) : std::nullopt;
    const auto changed = text ? edited(*text, settings) : std::nullopt;
    if (!changed)
        return false;
    return *changed == *text || OwnFile::replace(path, *changed, status.value().mode).ok();
}

/// Whether an override with these settings hides a system-wide entry now.
bool cover(const std::string& shared, const std::string& name, std::vector<Setting> settings)
{
    settings.push_back({AutostartRules::kOverrideKey, "true"});
    const auto text = readSmallFile(resolved(shared), DesktopEntry::kSizeLimit);
    const auto changed = text ? edited(*text, settings) : std::nullopt;
    const std::string folder = AutostartFolders::ofUser(Places::current()).front();
    return changed && makeFolders(folder, kFolderMode).ok() &&
           OwnFile::writeNew(PathText::join(folder, name), *changed, kFileMode).ok();
}

std::string ownPath(const std::string& name)
{
    return AutostartFolders::find(AutostartFolders::ofUser(Places::current()), name);
}

std::string sharedPath(const std::string& name)
{
    return AutostartFolders::find(AutostartFolders::ofEverybody(Places::current()), name);
}

std::vector<Setting> settingsFor(const DesktopEntry& entry, bool enabled)
{
    if (!enabled)
        return {{"Hidden", "true"}};
    std::vector<Setting> settings{{"Hidden", "false"}};
    for (const char* key : {"X-GNOME-Autostart-enabled", "X-MATE-Autostart-enabled"}) {
        if (entry.has(key))
            settings.push_back({key, "true"});
    }
    return settings;
}

bool turn(const std::string& name, bool enabled)
{
    const std::string own = ownPath(name);
    const auto shared = DesktopEntry::read(resolved(sharedPath(name)));
    const bool isSoByItself = shared && AutostartRules::isEnabled(*shared) == enabled;
    if (own.empty())
        return isSoByItself || (shared && cover(sharedPath(name), name, settingsFor(*shared, enabled)));
    const auto entry = DesktopEntry::read(own);
    if (!entry)
        return false;
    // Without the override everything is right: the entry behind it has this value itself, or is gone.
    if (AutostartRules::isOverride(*entry) && (isSoByItself || !shared))
        return OwnFile::remove(own).ok();
    return editOwn(own, settingsFor(*entry, enabled));
}

} // namespace

bool turnOff(const std::string& name)
{
    return turn(name, false);
}

bool turnOn(const std::string& name)
{
    return turn(name, true);
}

Text obstacle(const std::string& name)
{
    const std::string own = ownPath(name);
    const auto status = statusOf(own);
    const std::string folder = own.empty() ? AutostartFolders::ofUser(Places::current()).front()
                                           : std::string(PathText::parent(own));
    if (!OwnFolder::canHold(folder))
        return ToolsTexts::kLockedFolder;
    if (own.empty() || !status.ok())
        return {};
    if (status.value().type == FileType::link)
        return ToolsTexts::kLinkedEntry;
    return status.value().owner == Places::current().user ? Text() : ToolsTexts::kOthersEntry;
}

} // namespace orlen::AutostartSwitch
