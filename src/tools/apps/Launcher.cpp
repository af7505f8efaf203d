#include "tools/apps/Launcher.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/ChildProcess.h"
#include "platform/text/PathText.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/WrapperScript.h"

#include <algorithm>
#include <string_view>

namespace orlen {

namespace {

constexpr std::string_view kGearLever = "gearlever_";

/// Length of "appimagekit_" and the digits after it, at the start of a launcher's name; 0 if it has none.
std::size_t kitLength(std::string_view stem)
{
    constexpr std::string_view kAppImageKit = "appimagekit_";
    constexpr std::size_t kLength = kAppImageKit.size() + 32;
    const bool isKit = stem.starts_with(kAppImageKit) && stem.size() > kLength && stem[kLength] == '-' &&
                       stem.find_first_not_of("0123456789abcdef", kAppImageKit.size()) == kLength;
    return isKit ? kLength : 0;
}

/// AppImage managers prefix the launchers they write with their name.
std::string_view withoutManager(std::string_view stem)
{
    if (stem.starts_with(kGearLever))
        return stem.substr(kGearLever.size());
    const std::size_t kit = kitLength(stem);
    return kit > 0 ? stem.substr(kit + 1) : stem;
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
    const Places& places = Places::current();
    programs.push_back(places.normalized(program));
    const std::string target = resolved(program);
    if (target.empty())
        return;
    programs.push_back(places.normalized(target));
    const std::string wrapped = WrapperScript::target(target);
    if (wrapped.empty())
        return;
    programs.push_back(places.normalized(wrapped));
    if (const std::string end = resolved(wrapped); !end.empty())
        programs.push_back(places.normalized(end));
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

/// A prepared root has its own programs, which its files name as on any system.
bool isInstalled(const std::string& program)
{
    const Places& places = Places::current();
    if (!program.starts_with('/'))
        return !ChildProcess::programPath(program).empty();
    const bool isInRoot = PathText::isAtOrBelow(program, PathText::parent(places.systemRoot));
    return exists(isInRoot ? program : places.systemRoot + program);
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

std::string_view Launcher::iconPrefix(std::string_view path)
{
    const std::string_view stem = PathText::stem(path);
    return stem.starts_with(kGearLever) && stem.size() > kGearLever.size() ? stem
                                                                           : stem.substr(0, kitLength(stem));
}

bool Launcher::isProgramThere() const
{
    return std::any_of(programs.begin(), programs.end(), isInstalled);
}

bool Launcher::starts(const std::string& app) const
{
    return std::any_of(programs.begin(), programs.end(),
                       [&](const std::string& program) { return PathText::isAtOrBelow(program, app); });
}

} // namespace orlen
