#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What keeps a recognizer in, as it found by trying to get out.
struct CageReport {
    enum class Wall {
        files,       ///< opening any
        calls,       ///< system calls that decoding does not need
        network,     ///< sockets of any kind
        processes,   ///< starting others
        others,      ///< looking into others, or ending them
        code,        ///< running code that was not there when it started
        environment, ///< variables it was given
        memory,      ///< others that look into it, or keep what it held
    };
    struct Attempt {
        Wall wall;
        std::string name;
        bool isRefused = false;
    };

    int landlock = 0; ///< version of the system's own; 0: none
    std::vector<Attempt> attempts;

    /// Whether everything that was tried was refused.
    [[nodiscard]] bool holds(Wall wall) const;

    /// As the recognizer prints it.
    [[nodiscard]] std::string encoded() const;
    [[nodiscard]] static std::optional<CageReport> decoded(std::string_view text);

    /// Starts a recognizer that tries. Nothing when it cannot be started. Blocks; any thread.
    [[nodiscard]] static std::optional<CageReport> ask(const std::string& program);

    /// The only argument of a recognizer that tries, prints this and ends.
    static constexpr const char* kArgument = "--try";
};

} // namespace orlen
