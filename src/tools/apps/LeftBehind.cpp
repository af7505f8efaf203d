#include "tools/apps/LeftBehind.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/ChildProcess.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "scan/locations/Glob.h"
#include "tools/apps/AppNames.h"
#include "tools/apps/AppTraces.h"
#include "tools/apps/Flatpaks.h"
#include "tools/apps/FolderLook.h"
#include "tools/apps/InstalledNames.h"
#include "tools/apps/Snaps.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace orlen::LeftBehind {

namespace {

/// In lower case: the desktop's parts, libraries and their vendors, programming tools, and what games are
/// made with. No single program has these names, or it runs from where nobody can look.
const std::vector<std::string_view> kNobodys = {
    "gtk*",       "qt*",        "kde*",          "plasma*",        "kwin*",
    "kscreen*",   "kactivit*",  "baloo*",        "akonadi*",       "gnome*",
    "gvfs*",      "goa-*",      "evolution*",    "tracker*",       "localsearch*",
    "nautilus*",  "mutter*",    "xfce*",         "lxqt*",          "lxde*",
    "mate*",      "cinnamon*",  "nemo*",         "budgie*",        "cosmic*",
    "hypr*",      "sway*",      "i3*",           "ibus*",          "fcitx*",
    "pulse*",     "pipewire*",  "wireplumber*",  "alsa*",          "dconf*",
    "dbus*",      "systemd*",   "fontconfig*",   "font*",          "icon*",
    "theme*",     "menus",      "mime*",         "sounds",         "backgrounds",
    "wallpaper*", "color*",     "icc",           "applications",   "desktop-directories",
    "user-*",     "autostart*", "environment.d", "session*",       "xsettings*",
    "xdg-*",      "xorg*",      "wayland*",      "gegl*",          "babl*",
    "gstreamer*", "enchant*",   "hunspell*",     "aspell*",        "mesa*",
    "nvidia*",    "vulkan*",    "dxvk*",         "vkd3d*",         "recently-used*",
    "keyrings",   "kwallet*",   "thumbnails",    "flatpak*",       "snap*",
    "appimage*",  "containers", "docker*",       "libvirt*",       "qemu*",
    "trash*",     "orlen*",     "matplotlib*",   "jupyter*",       "ipython*",
    "python*",    "pip*",       "conda*",        "mamba*",         "virtualenv*",
    "nltk*",      "hugging*",   "torch*",        "keras*",         "tensorflow*",
    "node*",      "npm*",       "yarn*",         "pnpm*",          "configstore",
    "go-*",       "cargo*",     "rust*",         "ruby*",          "gem*",
    "perl*",      "php*",       "composer*",     "java*",          "gradle*",
    "maven*",     "dotnet*",    "nuget*",        "mono*",          "git*",
    "vim*",       "nvim*",      "emacs*",        "zsh*",           "bash*",
    "fish*",      "tmux*",      "nix*",          "guix*",          "google*",
    "mozilla*",   "microsoft*", "jetbrains*",    "adobe*",         "apple*",
    "amazon*",    "unity*",     "unreal*",       "epic*",          "godot*",
    "love*",      "renpy*",     "ren'py*",       "steam*",         "valve*",
    "unknown*",   "lutris*",    "heroic*",       "bottles*",       "wine*",
    "proton*",    "umu*",       "feral*",        "paradox*",       "larian*",
    "retroarch*", "libretro*",  "minecraft*",    "prismlauncher*", "multimc*"};

/// The folders of one name, wherever they are.
struct Candidate {
    std::string name;
    std::vector<std::string> paths;
    std::set<std::string_view> words; ///< of `Places`, that the folders are in
};
using Candidates = std::map<std::string, Candidate, std::less<>>;

/// What is known of one folder of the list.
struct Found {
    std::string path;
    Message note;
    TimePoint newest;
};

/// Whether there is a program of that name, as shells look for it.
bool isProgram(const std::string& name)
{
    std::vector<std::string> forms = AppNames::forms(name);
    forms.push_back(name);
    return std::any_of(forms.begin(), forms.end(),
                       [](const std::string& form) { return !ChildProcess::programPath(form).empty(); });
}

bool mayBeAppFolder(const std::string& name)
{
    if (name.starts_with('.') || !PathText::isValidUtf8(name))
        return false;
    const std::string lower = LanguageTools::lowerCase(name);
    return !AppNames::isAmbiguous(lower) && !Glob::matchesAny(kNobodys, lower);
}

Candidates candidates()
{
    Candidates all;
    for (const std::string_view word : {"{CONFIG}", "{DATA}", "{CACHE}", "{STATE}"}) {
        for (const std::string& folder : Places::current().expand(word)) {
            for (const std::string& name : listNames(folder)) {
                const std::string path = PathText::join(folder, name);
                if (!mayBeAppFolder(name) || !isRealFolder(path) || Safety::isProtected(path))
                    continue;
                Candidate& candidate = all[InstalledNames::plain(name)];
                candidate.name = name;
                candidate.paths.push_back(path);
                candidate.words.insert(word);
            }
        }
    }
    return all;
}

/// What is installed cannot be seen from a sandbox.
bool isSandboxed()
{
    const std::string& root = Places::current().systemRoot;
    return exists(root + "/.flatpak-info") || PathText::isAtOrBelow(OwnProgram::executable(), root + "/snap");
}

/// Programs installed in containers that share the home folder cannot be seen from here.
bool hasSharedContainers()
{
    return isProgram("distrobox") || isProgram("toolbox");
}

/// What is said of a folder whose owner is gone.
struct GoneTexts {
    Text changedLately; ///< none if such folders are not listed
    Text quietSinceYear;
    Text quietForDays;
};

constexpr GoneTexts kPrograms{{}, ToolsTexts::kNoProgramSince, ToolsTexts::kNoProgramFor};
constexpr GoneTexts kFlatpaks{ToolsTexts::kNoFlatpak, ToolsTexts::kNoFlatpakSince, ToolsTexts::kNoFlatpakFor};
constexpr GoneTexts kSnaps{ToolsTexts::kNoSnap, ToolsTexts::kNoSnapSince, ToolsTexts::kNoSnapFor};

Message noteOf(const GoneTexts& texts, const std::string& name, TimePoint newest, TimePoint now)
{
    using namespace std::chrono;
    const auto yearOf = [](TimePoint time) { return year_month_day(floor<days>(time)).year(); };
    if (newest > now - kQuietDays)
        return {texts.changedLately, {{"name", name}}};
    if (yearOf(newest) < yearOf(now))
        return {texts.quietSinceYear, {{"name", name}, {"year", Moment{newest, Moment::Form::year}}}};
    return {texts.quietForDays, {{"name", name}, {"count", std::int64_t{floor<days>(now - newest).count()}}}};
}

class Search {
public:
    Search(std::span<const AppInfo> listed, std::span<const CleanRecord> history, TimePoint now,
           const std::stop_token& stop)
        : m_now(now), m_stop(stop), m_installed(InstalledNames::read(listed, stop)),
          m_traces(AppTraces::read(history))
    {
    }

    void lookAt(const Candidate& candidate)
    {
        const std::string& name = candidate.name;
        if (m_installed.mayOwn(name) || isProgram(name))
            return;
        bool wasApp = AppNames::isIdentifier(name) || candidate.words.size() > 1 || m_traces.has(name);
        std::vector<Found> folders;
        for (const std::string& path : candidate.paths) {
            if (isVendorsOfInstalled(path))
                return;
            const FolderLook look = FolderLook::at(path, m_stop);
            // One folder in use, or one that cannot be judged, speaks for all of the name.
            if (!look.isComplete || look.newest > m_now - kQuietDays)
                return;
            wasApp = wasApp || look.isWebApp;
            if (!look.isPersonal)
                folders.push_back({path, noteOf(kPrograms, name, look.newest, m_now), look.newest});
        }
        if (wasApp)
            m_found.insert(m_found.end(), folders.begin(), folders.end());
    }

    /// The data that a manager of packages kept for one that is gone.
    void lookAtData(const GoneTexts& texts, const std::string& name, const std::string& path)
    {
        const FolderLook look = FolderLook::at(path, m_stop);
        if (look.isComplete && !look.isPersonal && !Safety::isProtected(path))
            m_found.push_back({path, noteOf(texts, name, look.newest, m_now), look.newest});
    }

    /// Measured, without what frees nothing.
    [[nodiscard]] std::vector<FileEntry> entries() const
    {
        std::vector<std::string> paths;
        for (const Found& found : m_found)
            paths.push_back(found.path);
        std::vector<FileEntry> entries = FS::entries(paths, {}, m_stop);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            entries[i].modified = m_found[i].newest;
            entries[i].notes = {m_found[i].note};
            entries[i].rating = Rating::review;
        }
        std::erase_if(entries, [](const FileEntry& entry) { return entry.size <= 0; });
        std::stable_sort(entries.begin(), entries.end(),
                         [](const FileEntry& a, const FileEntry& b) { return a.size > b.size; });
        return entries;
    }

private:
    /// Some applications keep their folder in one that has the name of their maker.
    [[nodiscard]] bool isVendorsOfInstalled(const std::string& path) const
    {
        const std::vector<std::string> names = listNames(path);
        return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return m_installed.isInMenus(name) || m_installed.isInMenus(PathText::stem(name));
        });
    }

    TimePoint m_now;
    const std::stop_token& m_stop;
    InstalledNames m_installed;
    AppTraces m_traces;
    std::vector<Found> m_found;
};

} // namespace

std::vector<FileEntry> find(std::span<const AppInfo> listed, std::span<const CleanRecord> history,
                            TimePoint now, const std::stop_token& stop)
{
    if (!Places::current().isHomeUsable || isSandboxed())
        return {};
    Search search(listed, history, now, stop);
    const Candidates all = hasSharedContainers() ? Candidates() : candidates();
    for (const auto& [plainName, candidate] : all) {
        if (stop.stop_requested())
            return {};
        search.lookAt(candidate);
    }
    for (const AppInfo& app : Flatpaks::removed())
        search.lookAtData(kFlatpaks, app.bundleID, app.path);
    for (const Snaps::Removed& snap : Snaps::removed()) {
        for (const std::string& path : snap.folders)
            search.lookAtData(kSnaps, snap.name, path);
    }
    std::vector<FileEntry> entries = search.entries();
    return stop.stop_requested() ? std::vector<FileEntry>() : entries;
}

CleanPlan plan(std::vector<FileEntry> entries)
{
    CleanPlan plan;
    plan.title = kTitle;
    plan.sections.push_back(
        {"left", ToolsTexts::kLeftovers, "folder.fill", std::move(entries), Rating::review});
    return plan;
}

} // namespace orlen::LeftBehind
