#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// An application as described by a desktop entry file. A plain value.
struct Launcher {
    std::string path;
    std::string name;        ///< in the user's language; may be empty
    std::string plainName;   ///< untranslated
    std::string identifier;  ///< reverse-DNS, from the file name or else a key; may be empty
    std::string stem;        ///< the file name without its suffix and package managers' prefix
    std::string imageName;   ///< the name in an AppImage's own entry; may be empty
    std::string icon;        ///< absolute path or theme name; may be empty
    std::string windowClass; ///< of its windows; may be empty
    std::string flatpak;     ///< identifier of the Flatpak it starts; else empty
    /// The programs in `Exec` and `TryExec`: absolute paths, with and without links resolved, and what a
    /// wrapper script there starts; or a bare name that is not one of the user's own programs.
    std::vector<std::string> programs;

    enum class Links { refused, followed };
    /// Nothing if it is not a desktop entry or is marked as deleted. Blocks on the disk.
    [[nodiscard]] static std::optional<Launcher> read(const std::string& path, Links links);

    /// Whether it starts this file, or something inside this folder.
    [[nodiscard]] bool starts(const std::string& app) const;

    /// Whether any of its programs is installed. Blocks on the disk.
    [[nodiscard]] bool isProgramThere() const;

    /// What an AppImage manager put before the name of this launcher's icon files, such as "gearlever_x_1";
    /// empty if no manager made it.
    [[nodiscard]] static std::string_view iconPrefix(std::string_view path);
};

} // namespace orlen
