#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// A unit file of the user's systemd. Untrusted input.
struct UnitFile {
    std::string program; ///< the program of the first start command; empty if there is none
    std::string command; ///< the whole of that command, in one line
    std::string description;
    /// The unit that a timer, socket or path starts, if it is not the service of its own name.
    std::string started;
    std::vector<std::string> aliases; ///< its other names while enabled
    bool isInstallable = false;       ///< has an [Install] section, so it can be enabled and disabled

    /// `home` replaces "%h" in a command, and `instance` "%i" if it is not empty. Pure.
    [[nodiscard]] static UnitFile parsed(std::string_view text, std::string_view home,
                                         std::string_view instance = {});
    /// Links are followed. Nothing if the file cannot be read or is unreasonably long. Blocks on the disk;
    /// any thread.
    [[nodiscard]] static std::optional<UnitFile> read(const std::string& path, std::string_view home,
                                                      std::string_view instance = {});
};

} // namespace orlen
