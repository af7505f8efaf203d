#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Where everything lies: the one value that every rule takes its folders from. Read from the environment
/// once per process; nothing else in the program spells an absolute folder. Paths have no trailing slash.
struct Places {
    std::string home;         ///< `$HOME` when absolute and existing, else the passwd entry; links kept
    std::string resolvedHome; ///< `home` with links resolved, often the same text
    /// False when the home folder is "/", missing, owned by somebody else or not in the prepared root that
    /// was named: nothing is scanned or moved.
    bool isHomeUsable = false;
    bool isHomeSilent = false; ///< it lies on a mount that does not answer, and is not usable for that
    unsigned user = 0;         ///< user number

    /// The folders in force and behind them, when a variable moved one, its default below the home folder.
    /// Never empty; the first is where the program itself writes. A variable that names, holds or lies in one
    /// of the user's own folders (Documents and so on) moves nothing.
    std::vector<std::string> caches;
    std::vector<std::string> configs;
    std::vector<std::string> data;
    std::vector<std::string> states;

    /// Folders of settings for all users: "/etc/xdg", which counts in every session, then `$XDG_CONFIG_DIRS`.
    std::vector<std::string> sharedConfigs;
    /// Folders of data for all users, `$XDG_DATA_DIRS` or its defaults, the most important first.
    std::vector<std::string> sharedData;

    /// From "user-dirs.dirs": existing folders below the home folder, empty when not set or switched off.
    std::string desktop;
    std::string downloads;
    std::string documents;
    std::string music;
    std::string pictures;
    std::string videos;
    std::string templates;
    std::string publicShare;

    std::string applications = "/Applications";
    std::string library = "/Library";
    std::string volume = "/";                 ///< the start-up volume
    std::string launchctl = "/bin/launchctl"; ///< tool that switches launch agents
    std::string mountTable = "/proc/self/mountinfo";
    std::string processes = "/proc"; ///< table of what runs, one folder each
    std::vector<std::string> dictionaries = {"/usr/share/hunspell", "/usr/share/myspell"};
    /// Put before "/opt", "/etc/systemd/user", "/var/lib/flatpak" and all else of the system that is looked
    /// at; empty but in a prepared root.
    std::string systemRoot;
    /// Language tags in the order of preference, for example "de_AT"; from LANGUAGE, else the locale.
    std::vector<std::string> languages;

    /// The text forms of every set user folder, without repeats.
    [[nodiscard]] std::vector<std::string> userFolders() const;

    /// All paths that a pattern stands for, in order and without repeats. Words in braces at its start:
    /// {H} {CACHE} {CONFIG} {DATA} {STATE} {STEAM} {APPLICATIONS} {LIBRARY} {ROOT}, and the user folders
    /// {DESKTOP} {DOWNLOAD} {DOCUMENTS} {MUSIC} {PICTURES} {VIDEOS} {TEMPLATES} {PUBLICSHARE}; {UID} may
    /// stand anywhere. A word that stands for several folders gives several paths, one that stands for none
    /// gives none.
    [[nodiscard]] std::vector<std::string> expand(std::string_view pattern) const;

    /// The path in the form that all rules compare: standardised, and with the resolved home folder at its
    /// start replaced by `home`.
    [[nodiscard]] std::string normalized(std::string_view path) const;

    /// Reads the environment, the passwd entry and "user-dirs.dirs" afresh. With `$ORLEN_PREPARED_ROOT`, a
    /// folder of the user's own around the home folder, nothing outside it is looked at: "system" in it
    /// stands for the root folder, "Applications" and "Library" for theirs. For tests.
    [[nodiscard]] static Places fromEnvironment();

    /// The process's places, made from the environment on first use. Any thread.
    [[nodiscard]] static const Places& current();
    /// Replaces them, before any thread has asked for them: for a prepared folder tree.
    static void setCurrent(Places places);
};

} // namespace orlen
