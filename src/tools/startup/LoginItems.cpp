#include "tools/startup/LoginItems.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Places.h"
#include "platform/process/ChildProcess.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/PathText.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/AutostartFolders.h"
#include "tools/startup/AutostartRules.h"
#include "tools/startup/OwnEntry.h"
#include "tools/startup/ServiceManager.h"

#include <algorithm>
#include <string_view>

namespace orlen::LoginItems {

namespace {

constexpr unsigned kFolderMode = 0700;
constexpr unsigned kFileMode = 0644;

std::string folder()
{
    return AutostartFolders::ofUser(Places::current()).front();
}

std::string entryPath()
{
    return PathText::join(folder(), OwnEntry::kFileName);
}

bool isAnyFolderListable(const std::vector<std::string>& folders)
{
    return std::any_of(folders.begin(), folders.end(),
                       [](const std::string& path) { return isListable(path + "/."); });
}

/// What prevents this program from changing its entry in either direction.
std::optional<Text> obstacle()
{
    const Places& places = Places::current();
    if (exists(places.systemRoot + "/.flatpak-info"))
        return ToolsTexts::kSandboxed;
    if (!places.isHomeUsable)
        return ToolsTexts::kUnusableHome;
    const auto status = statusOf(entryPath());
    if (status.ok() && status.value().type != FileType::regular)
        return ToolsTexts::kForeignEntry;
    return std::nullopt;
}

Result<void> writeEntry(const std::string& text)
{
    if (auto made = makeFolders(folder(), kFolderMode); !made.ok())
        return made;
    return OwnFile::replace(entryPath(), text, kFileMode);
}

} // namespace

std::optional<std::vector<std::string>> names()
{
    const Places& places = Places::current();
    if (!isAnyFolderListable(AutostartFolders::ofUser(places)) &&
        !isAnyFolderListable(AutostartFolders::ofEverybody(places)))
        return std::nullopt;
    std::vector<std::string> names;
    for (LaunchItem& item : makeAutostartEntries()->items()) {
        if (item.enabled)
            names.push_back(std::move(item.name));
    }
    return names;
}

std::vector<std::string> settingsCommand()
{
    const std::vector<std::string> pages[] = {
        {"gnome-session-properties"},         {"systemsettings", "kcm_autostart"},
        {"systemsettings5", "kcm_autostart"}, {"xfce4-session-settings"},
        {"mate-session-properties"},
    };
    for (const std::vector<std::string>& page : pages) {
        if (!ChildProcess::programPath(page.front()).empty())
            return page;
    }
    return {};
}

bool isRegistered()
{
    const auto entry = DesktopEntry::read(resolved(entryPath()));
    if (!entry || !AutostartRules::isEnabled(*entry))
        return false;
    const std::vector<std::string> command = entry->command("Exec");
    return !command.empty() && !ChildProcess::programPath(command.front()).empty();
}

std::optional<Text> setRegistered(bool registered)
{
    if (auto reason = obstacle())
        return reason;
    if (!registered) {
        const bool isGone = !exists(entryPath()) || OwnFile::remove(entryPath()).ok();
        return isGone ? std::nullopt : std::optional(ToolsTexts::kUnwritableFolder);
    }
    const auto text = OwnEntry::text(OwnProgram::path());
    if (!text)
        return ToolsTexts::kUnwritablePath;
    const bool isWritten = writeEntry(*text).ok();
    return isWritten ? std::nullopt : std::optional(ToolsTexts::kUnwritableFolder);
}

} // namespace orlen::LoginItems
