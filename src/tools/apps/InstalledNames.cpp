#include "tools/apps/InstalledNames.h"

#include "clean/Safety.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/OwnProgram.h"
#include "platform/process/RunningPrograms.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/LineText.h"
#include "platform/text/PathText.h"
#include "scan/locations/Glob.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/Launchers.h"
#include "tools/startup/UnitFolders.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace orlen {

namespace {

/// Where something installed has a file or folder with its name.
constexpr std::string_view kFolders[] = {
    // Programs.
    "{ROOT}/bin",
    "{ROOT}/sbin",
    "{ROOT}/usr/bin",
    "{ROOT}/usr/sbin",
    "{ROOT}/usr/games",
    "{ROOT}/usr/local/bin",
    "{ROOT}/usr/local/sbin",
    "{ROOT}/usr/local/games",
    "{ROOT}/opt/*/bin",
    "{ROOT}/home/linuxbrew/.linuxbrew/bin",
    "{ROOT}/nix/var/nix/profiles/default/bin",
    "{ROOT}/run/current-system/sw/bin",
    "{ROOT}/etc/profiles/per-user/*/bin",
    "{H}/.local/bin",
    "{H}/bin",
    "{H}/.cargo/bin",
    "{H}/go/bin",
    "{H}/.npm-global/bin",
    "{H}/.local/npm-global/bin",
    "{H}/.nvm/versions/node/*/bin",
    "{H}/.nvm/versions/node/*/lib/node_modules",
    "{H}/.npm-global/lib/node_modules",
    "{H}/.volta/bin",
    "{H}/.bun/bin",
    "{H}/.deno/bin",
    "{H}/.yarn/bin",
    "{DATA}/pnpm",
    "{H}/.dotnet/tools",
    "{H}/.pub-cache/bin",
    "{H}/.composer/vendor/bin",
    "{CONFIG}/composer/vendor/bin",
    "{H}/.gem/ruby/*/bin",
    "{H}/.local/share/gem/ruby/*/bin",
    "{H}/.rbenv/shims",
    "{H}/.pyenv/shims",
    "{H}/.asdf/shims",
    "{DATA}/mise/shims",
    "{H}/.sdkman/candidates",
    "{H}/.cabal/bin",
    "{H}/.ghcup/bin",
    "{H}/.opam/*/bin",
    "{H}/.juliaup/bin",
    "{H}/.krew/bin",
    "{H}/.nix-profile/bin",
    "{H}/.linuxbrew/bin",
    "{DATA}/coursier/bin",
    "{DATA}/JetBrains/Toolbox/apps",
    "{DATA}/JetBrains/Toolbox/scripts",
    "{H}/miniconda3/bin",
    "{H}/anaconda3/bin",
    "{H}/miniforge3/bin",
    // What packages put elsewhere, under the name of a program, a library or a part of the desktop.
    "{ROOT}/opt",
    "{ROOT}/etc",
    "{ROOT}/etc/xdg",
    "{ROOT}/usr/share",
    "{ROOT}/usr/lib",
    "{ROOT}/usr/lib64",
    "{ROOT}/usr/lib/*-linux-*",
    "{ROOT}/usr/libexec",
    "{ROOT}/usr/local/share",
    "{ROOT}/usr/local/lib",
    "{ROOT}/usr/local/opt",
    "{ROOT}/usr/lib/python3/dist-packages",
    "{ROOT}/usr/lib/python3*/site-packages",
    "{ROOT}/usr/local/lib/python3*/dist-packages",
    "{H}/.local/lib/python3*/site-packages",
    "{DATA}/pipx/venvs",
    "{H}/.local/pipx/venvs",
    "{ROOT}/usr/lib/node_modules",
    "{ROOT}/usr/local/lib/node_modules",
    // Packages and services.
    "{ROOT}/var/lib/dpkg/info",
    "{ROOT}/var/lib/pacman/local",
    "{ROOT}/var/db/pkg/*",
    "{ROOT}/var/lib/snapd/snaps",
    "{ROOT}/snap",
    "{ROOT}/var/lib/snapd/snap",
    "{ROOT}/var/lib/flatpak/app",
    "{DATA}/flatpak/app",
    "{ROOT}/usr/share/dbus-1/services",
    "{ROOT}/usr/share/dbus-1/system-services",
    "{ROOT}/usr/local/share/dbus-1/services",
    "{DATA}/dbus-1/services",
    "{ROOT}/usr/lib/systemd/system",
    "{ROOT}/lib/systemd/system",
    "{ROOT}/etc/systemd/system",
    // Games.
    "{STEAM}/steamapps/common",
};

/// Programs whose folders have another name than they themselves. Both plain.
struct OtherName {
    std::string_view program;
    std::string_view folder;
};
constexpr OtherName kOtherNames[] = {
    {"hx", "helix"},
    {"nu", "nushell"},
    {"rg", "ripgrep"},
    {"btm", "bottom"},
    {"tldr", "tealdeer"},
    {"obs", "obsstudio"},
    {"subl", "sublimetext"},
    {"ghb", "handbrake"},
    {"soffice", "libreoffice"},
    {"mscore", "musescore"},
    {"zoom", "zoomus"},
    {"wps", "kingsoft"},
    {"codium", "vscodium"},
    {"telegram", "telegramdesktop"},
};

/// Endings that are no part of a name.
constexpr std::string_view kEndings[] = {".list", ".service", ".socket", ".timer", ".desktop", ".so"};
/// What packages of libraries have before the name.
constexpr std::string_view kBeginnings[] = {"python3-", "lib", "node-", "golang-"};

/// Words that many applications have beside their own name, and parts of identifiers that they share.
constexpr std::string_view kSharedWords[] = {
    "gnome",  "kde",     "freedesktop", "github",   "gitlab",  "google",  "mozilla", "microsoft",
    "apple",  "desktop", "client",      "launcher", "player",  "editor",  "viewer",  "browser",
    "studio", "manager", "stable",      "beta",     "nightly", "preview", "linux",   "codeberg"};

constexpr std::size_t kShortest = 4;      ///< shorter words say nothing
constexpr std::size_t kShortestStart = 5; ///< of a name that another word begins with

std::vector<std::string> foldersOf(std::string_view pattern)
{
    const std::size_t wordEnd = pattern.find('}') + 1;
    std::vector<std::string> folders;
    for (const std::string& base : Places::current().expand(pattern.substr(0, wordEnd))) {
        for (Glob::Match& match : Glob::paths(base, pattern.substr(wordEnd)))
            folders.push_back(std::move(match.path));
    }
    return folders;
}

std::vector<std::string_view> wordsOf(std::string_view name)
{
    std::vector<std::string_view> words;
    for (std::size_t at = 0; at < name.size();) {
        const std::size_t end = std::min(name.find_first_of(" -_.+@()", at), name.size());
        if (end > at)
            words.push_back(name.substr(at, end - at));
        at = end + 1;
    }
    return words;
}

/// A program that is kept where nobody else would look: a folder, or a file that can be run.
bool mayBeProgram(const std::string& path)
{
    constexpr std::uint32_t kAnyExecute = 0111;
    const auto status = statusOf(path);
    return status.ok() && (status.value().type == FileType::folder || status.value().type == FileType::link ||
                           (status.value().mode & kAnyExecute) != 0);
}

/// Adds what lies in the home folder and in its folders.
void addHome(InstalledNames& names, const std::string& folder, int depth, const std::stop_token& stop)
{
    for (const std::string& name : listNames(folder)) {
        if (stop.stop_requested())
            return;
        const std::string path = PathText::join(folder, name);
        if (name.starts_with('.') || !mayBeProgram(path))
            continue;
        names.add(name);
        if (depth > 0 && isRealFolder(path) && !Safety::protectsContents(path))
            addHome(names, path, depth - 1, stop);
    }
}

void addLauncher(InstalledNames& names, const Launcher& launcher)
{
    for (const std::string* name :
         {&launcher.name, &launcher.plainName, &launcher.windowClass, &launcher.stem, &launcher.identifier,
          &launcher.imageName, &launcher.flatpak})
        names.add(*name);
    for (const std::string& program : launcher.programs)
        names.addProgram(PathText::lastComponent(program));
}

/// Crates are often named otherwise than the programs they install.
void addCrates(InstalledNames& names)
{
    constexpr std::size_t kCratesLimit = 1024UL * 1024;
    const auto list = readSmallFile(Places::current().home + "/.cargo/.crates.toml", kCratesLimit);
    for (std::string_view text = list ? std::string_view(*list) : std::string_view(); !text.empty();) {
        std::string_view line = LineText::takeLine(text);
        if (!line.starts_with('"'))
            continue;
        line.remove_prefix(1);
        names.add(line.substr(0, line.find(' ')));
    }
}

void addListed(InstalledNames& names, std::span<const AppInfo> listed)
{
    for (const AppInfo& app : listed) {
        if (app.source == AppSource::removedFlatpak)
            continue;
        names.add(app.name);
        names.add(app.bundleID);
        names.add(PathText::lastComponent(app.path));
    }
}

} // namespace

InstalledNames InstalledNames::read(std::span<const AppInfo> listed, const std::stop_token& stop)
{
    InstalledNames names;
    names.add(OwnProgram::identifier());
    addListed(names, listed);
    for (const std::string_view pattern : kFolders) {
        for (const std::string& folder : foldersOf(pattern)) {
            if (stop.stop_requested())
                return names;
            // "/bin" and "/opt" may be links.
            for (const std::string& name : listNames(resolved(folder)))
                names.add(name);
        }
    }
    for (const std::string& folder : UnitFolders::all(Places::current())) {
        for (const std::string& name : listNames(folder))
            names.add(name);
    }
    for (const std::string& program : RunningPrograms::executables()) {
        names.add(PathText::lastComponent(program));
        names.add(PathText::lastComponent(PathText::parent(program)));
    }
    for (const Launcher& launcher : Launchers::ofSystem(stop))
        addLauncher(names, launcher);
    for (const Launcher& launcher : Launchers::ofUser()) {
        if (launcher.isProgramThere())
            addLauncher(names, launcher);
    }
    addCrates(names);
    addHome(names, Places::current().home, 1, stop);
    for (const OtherName& other : kOtherNames) {
        if (names.m_names.contains(other.program))
            names.m_names.emplace(other.folder);
    }
    return names;
}

std::string InstalledNames::plain(std::string_view name)
{
    std::string text;
    for (const char c : LanguageTools::lowerCase(name)) {
        const bool isLetter =
            (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80U;
        if (isLetter)
            text.push_back(c);
    }
    return text;
}

void InstalledNames::add(std::string_view name)
{
    for (const std::string_view ending : kEndings) {
        if (name.ends_with(ending))
            name.remove_suffix(ending.size());
    }
    m_names.insert(plain(name));
    if (AppNames::isIdentifier(name))
        m_names.insert(plain(AppNames::lastPart(name)));
    for (const std::string_view beginning : kBeginnings) {
        if (name.starts_with(beginning))
            m_names.insert(plain(name.substr(beginning.size())));
    }
}

void InstalledNames::addProgram(std::string_view name)
{
    add(name);
    m_programs.insert(plain(name));
}

bool InstalledNames::isInMenus(std::string_view program) const
{
    const std::string name = plain(program);
    return name.size() >= kShortest && m_programs.contains(name);
}

bool InstalledNames::mayOwn(std::string_view folder) const
{
    const std::string whole = plain(folder);
    if (whole.size() < kShortest || has(whole))
        return true;
    std::vector<std::string_view> words = wordsOf(folder);
    if (AppNames::isIdentifier(folder))
        words.erase(words.begin()); // "org" or the like
    return std::any_of(words.begin(), words.end(), [&](std::string_view word) {
        const std::string text = plain(word);
        const bool isShared =
            std::find(std::begin(kSharedWords), std::end(kSharedWords), text) != std::end(kSharedWords);
        return text.size() >= kShortest && !isShared && has(text);
    });
}

bool InstalledNames::has(std::string_view plainWord) const
{
    const auto next = m_names.lower_bound(plainWord);
    if (next != m_names.end() && next->starts_with(plainWord))
        return true;
    for (std::size_t length = kShortestStart; length < plainWord.size(); ++length) {
        if (m_names.contains(plainWord.substr(0, length)))
            return true;
    }
    return false;
}

} // namespace orlen
