#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Every folder that rules refer to, read from the environment once per process. Nothing else in the program
/// spells out an absolute path. Paths have no trailing slash.
struct Places {
    std::string home;         ///< `$HOME` if absolute and existing, else the passwd entry; links kept
    std::string resolvedHome; ///< `home` with links resolved; often the same
    /// False when the home folder is "/", missing, owned by somebody else or outside the prepared root: then
    /// nothing is scanned or moved.
    bool isHomeUsable = false;
    bool isHomeSilent = false; ///< on a mount that does not answer, which makes it unusable
    unsigned user = 0;         ///< user number

    /// The folders in use, each followed by its default below the home folder if a variable moved it. Never
    /// empty; the program itself writes to the first. A variable has no effect if it names one of the user's
    /// own folders (Documents and so on), a folder inside one, or one that contains them.
    std::vector<std::string> caches;
    std::vector<std::string> configs;
    std::vector<std::string> data;
    std::vector<std::string> states;

    /// Folders of Steam and of its game libraries, below the home folder.
    std::vector<std::string> steam;
    /// The folder of Android virtual devices that `$ANDROID_AVD_HOME` names; empty unless below the home
    /// folder.
    std::string androidDevices;

    /// System-wide settings: "/etc/xdg", which always counts, then `$XDG_CONFIG_DIRS`.
    std::vector<std::string> sharedConfigs;
    /// System-wide data: `$XDG_DATA_DIRS` or its defaults, most important first.
    std::vector<std::string> sharedData;

    /// From "user-dirs.dirs": existing folders below the home folder; empty when unset or disabled.
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
    std::string launchctl = "/bin/launchctl"; ///< turns launch agents on and off
    std::string mountTable = "/proc/self/mountinfo";
    std::string processes = "/proc"; ///< the process table, one folder per process
    std::vector<std::string> dictionaries = {"/usr/share/hunspell", "/usr/share/myspell"};
    /// Prefix of every system path the program looks at, such as "/opt" or "/var/lib/flatpak". Empty except
    /// in a prepared root.
    std::string systemRoot;
    /// Language tags such as "de_AT", most preferred first, from LANGUAGE or else the locale.
    std::vector<std::string> languages;

    /// All user folders that are set, without duplicates.
    [[nodiscard]] std::vector<std::string> userFolders() const;

    /// All paths a pattern stands for, in order and without duplicates. It may start with one of {H} {CACHE}
    /// {CONFIG} {DATA} {STATE} {STEAM} {APPLICATIONS} {LIBRARY} {ROOT} or a user folder: {DESKTOP} {DOWNLOAD}
    /// {DOCUMENTS} {MUSIC} {PICTURES} {VIDEOS} {TEMPLATES} {PUBLICSHARE}. {UID} may appear anywhere. A word
    /// with several folders gives several paths, one without any gives none.
    [[nodiscard]] std::vector<std::string> expand(std::string_view pattern) const;

    /// The path in the form all rules compare: standardized, and with the resolved home folder at its start
    /// replaced by `home`.
    [[nodiscard]] std::string normalized(std::string_view path) const;

    /// Reads the environment, the passwd entry and "user-dirs.dirs" again. For tests: if
    /// `$ORLEN_PREPARED_ROOT` names a folder of the user's own that contains the home folder, nothing outside
    /// it is looked at, and its "system", "Applications" and "Library" stand in for "/", "/Applications" and
    /// "/Library".
    [[nodiscard]] static Places fromEnvironment();

    /// The places of this process, read from the environment on first use. Any thread.
    [[nodiscard]] static const Places& current();
    /// Replaces them, before any thread has asked for them. For a prepared folder tree.
    static void setCurrent(Places places);
};

} // namespace orlen
