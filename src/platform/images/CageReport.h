#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// How well a recognizer is locked in, found by having it try to break out.
struct CageReport {
    enum class Wall {
        files,       ///< opening files
        calls,       ///< system calls that decoding does not need
        network,     ///< sockets of any kind
        processes,   ///< starting processes
        others,      ///< inspecting or killing other processes
        code,        ///< running code that was not loaded at start
        environment, ///< inherited variables
        memory,      ///< being inspected, or its memory outliving it
    };
    struct Attempt {
        Wall wall;
        std::string name;
        bool isRefused = false;
    };

    int landlock = 0; ///< version of the system's Landlock; 0: none
    std::vector<Attempt> attempts;

    /// Whether every attempt was refused.
    [[nodiscard]] bool holds(Wall wall) const;

    /// In the form the recognizer prints.
    [[nodiscard]] std::string encoded() const;
    [[nodiscard]] static std::optional<CageReport> decoded(std::string_view text);

    /// Starts a recognizer that tries. Nothing if it cannot be started. Blocks; any thread.
    [[nodiscard]] static std::optional<CageReport> ask(const std::string& program);

    /// The command-line argument that makes a recognizer try, print this and exit.
    static constexpr const char* kArgument = "--try";
};

} // namespace orlen
