#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What a unit file of the user's service manager tells about a service. Untrusted input.
struct UnitFile {
    std::string program; ///< what the first start command runs; empty when there is none
    std::string description;
    std::vector<std::string> aliases; ///< further names that it is known by while it is switched on
    bool isInstallable = false; ///< says what it is to be started with, so it can be switched on and off

    /// `home` is what "%h" in a command stands for. Pure.
    [[nodiscard]] static UnitFile parsed(std::string_view text, std::string_view home);
    /// A link is followed. Nothing when the file cannot be read or is unreasonably long. Blocks on the disk;
    /// any thread.
    [[nodiscard]] static std::optional<UnitFile> read(const std::string& path, std::string_view home);
};

} // namespace orlen
