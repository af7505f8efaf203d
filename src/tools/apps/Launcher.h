#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// What a desktop entry file tells about the application that it starts. A plain value.
struct Launcher {
    std::string path;
    std::string name;        ///< in the user's language; may be empty
    std::string plainName;   ///< in no language
    std::string identifier;  ///< reverse-DNS, from the file's name, else a key; may be empty
    std::string stem;        ///< the file's name without its suffix and what managers put before it
    std::string imageName;   ///< what an AppImage's own entry called it; may be empty
    std::string icon;        ///< absolute path or theme name; may be empty
    std::string windowClass; ///< of the windows it opens; may be empty
    std::string flatpak;     ///< identifier of the Flatpak that it starts; else empty
    /// What `Exec` and `TryExec` start: absolute with and without links resolved, or a bare name that is none
    /// of the user's own programs.
    std::vector<std::string> programs;

    enum class Links { refused, followed };
    /// Nothing for what is no desktop entry or was deleted by a setting. Blocks on the disk.
    [[nodiscard]] static std::optional<Launcher> read(const std::string& path, Links links);

    /// Whether it starts the file, or something below the folder.
    [[nodiscard]] bool starts(const std::string& app) const;
};

} // namespace orlen
