#include "tools/apps/Launcher.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppNames.h"

#include <algorithm>
#include <string_view>

namespace orlen {

namespace {

/// AppImage managers prefix the launchers they write with their name.
std::string_view withoutManager(std::string_view stem)
{
    constexpr std::string_view kGearLever = "gearlever_";
    constexpr std::string_view kAppImageKit = "appimagekit_";
    constexpr std::size_t kDigits = 32;
    if (stem.starts_with(kGearLever))
        return stem.substr(kGearLever.size());
    const std::size_t dash = kAppImageKit.size() + kDigits;
    const bool isKit = stem.starts_with(kAppImageKit) && stem.size() > dash && stem[dash] == '-' &&
                       stem.find_first_not_of("0123456789abcdef", kAppImageKit.size()) == dash;
    return isKit ? stem.substr(dash + 1) : stem;
}

/// Looks up a bare name among the user's own programs; a system program of that name is not removable.
std::string located(const std::string& word)
{
    if (word.find('/') != std::string::npos)
        return word;
    const std::string& home = Places::current().home;
    for (const char* folder : {"/.local/bin/", "/bin/"}) {
        std::string path = (home + folder).append(word);
        if (exists(path))
            return path;
    }
    return word;
}

void addProgram(std::vector<std::string>& programs, const std::string& word)
{
    if (word.empty())
        return;
    const std::string program = located(word);
    if (!program.starts_with('/')) {
        programs.push_back(program);
        return;
    }
    programs.push_back(Places::current().normalized(program));
    if (const std::string target = resolved(program); !target.empty())
        programs.push_back(Places::current().normalized(target));
}

std::vector<std::string> programsOf(const DesktopEntry& entry)
{
    std::vector<std::string> programs;
    for (const char* key : {"Exec", "TryExec"}) {
        const std::vector<std::string> words = entry.command(key);
        if (!words.empty())
            addProgram(programs, words.front());
    }
    // By the standard this is a literal path, spaces included.
    addProgram(programs, entry.text("TryExec"));
    return programs;
}

} // namespace

std::optional<Launcher> Launcher::read(const std::string& path, Links links)
{
    const auto entry = DesktopEntry::read(links == Links::followed ? resolved(path) : path);
    if (!entry || entry->flag("Hidden") == true)
        return std::nullopt;
    Launcher launcher;
    launcher.path = path;
    launcher.name = entry->localizedText("Name", Places::current().languages);
    launcher.plainName = entry->text("Name");
    launcher.stem = withoutManager(PathText::stem(path));
    launcher.identifier = launcher.stem;
    if (!AppNames::isIdentifier(launcher.identifier))
        launcher.identifier = entry->text("X-AppImage-Identifier");
    if (!AppNames::isIdentifier(launcher.identifier))
        launcher.identifier.clear();
    launcher.imageName = entry->text("X-AppImage-Name");
    launcher.icon = entry->text("Icon");
    launcher.windowClass = entry->text("StartupWMClass");
    launcher.flatpak = entry->text("X-Flatpak");
    launcher.programs = programsOf(*entry);
    return launcher;
}

bool Launcher::starts(const std::string& app) const
{
    return std::any_of(programs.begin(), programs.end(),
                       [&](const std::string& program) { return PathText::isAtOrBelow(program, app); });
}

} // namespace orlen
