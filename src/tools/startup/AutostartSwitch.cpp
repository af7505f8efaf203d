#include "tools/startup/AutostartSwitch.h"

#include "platform/DesktopEntry.h"
#include "platform/FileContent.h"
#include "platform/FileStatus.h"
#include "platform/Folder.h"
#include "platform/PathText.h"
#include "platform/Places.h"
#include "tools/startup/AutostartFolders.h"
#include "tools/startup/AutostartRules.h"
#include "tools/startup/DesktopEntryEdit.h"

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

namespace orlen::AutostartSwitch {

namespace {

using DesktopEntryEdit::Setting;

constexpr unsigned kFolderMode = 0700;
constexpr unsigned kFileMode = 0644;

/// Nothing when the change would not come across.
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
    return *changed == *text || replaceFile(path, *changed, status.value().mode).ok();
}

/// Whether a copy that is off stands before an entry of all users now.
bool cover(const std::string& shared, const std::string& name)
{
    const Setting settings[] = {{"Hidden", "true"}, {AutostartRules::kOverrideKey, "true"}};
    const auto text = readSmallFile(resolved(shared), DesktopEntry::kSizeLimit);
    const auto changed = text ? edited(*text, settings) : std::nullopt;
    const std::string folder = AutostartFolders::ofUser(Places::current()).front();
    return changed && makeFolders(folder, kFolderMode).ok() &&
           writeNewFile(PathText::join(folder, name), *changed, kFileMode).ok();
}

std::string ownPath(const std::string& name)
{
    return AutostartFolders::find(AutostartFolders::ofUser(Places::current()), name);
}

std::string sharedPath(const std::string& name)
{
    return AutostartFolders::find(AutostartFolders::ofEverybody(Places::current()), name);
}

} // namespace

bool turnOff(const std::string& name)
{
    const Setting hidden[] = {{"Hidden", "true"}};
    if (const std::string own = ownPath(name); !own.empty())
        return editOwn(own, hidden);
    return cover(sharedPath(name), name);
}

bool turnOn(const std::string& name)
{
    const std::string own = ownPath(name);
    if (own.empty()) {
        const auto shared = DesktopEntry::read(resolved(sharedPath(name)));
        return shared && AutostartRules::isEnabled(*shared);
    }
    const auto entry = DesktopEntry::read(own);
    if (!entry)
        return false;
    if (AutostartRules::isOverride(*entry))
        return removeOwnFile(own).ok();
    std::vector<Setting> settings{{"Hidden", "false"}};
    for (const char* key : {"X-GNOME-Autostart-enabled", "X-MATE-Autostart-enabled"}) {
        if (entry->has(key))
            settings.push_back({key, "true"});
    }
    return editOwn(own, settings);
}

} // namespace orlen::AutostartSwitch
