#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// One line of what the user never wants offered: a place, or every entry of a name.
struct Exclusion {
    enum class Kind : std::uint8_t {
        path, ///< this path and everything below it
        name, ///< every entry of this name and everything below it
    };

    Kind kind = Kind::path;
    std::string text; ///< an absolute, standardized path, or one component of a path; valid UTF-8

    /// Standardizes the path. Nothing if it is not absolute, not UTF-8, or longer than the system allows.
    [[nodiscard]] static std::optional<Exclusion> ofPath(std::string_view path);
    /// Nothing if no entry can have this name, or if it is not UTF-8.
    [[nodiscard]] static std::optional<Exclusion> ofName(std::string_view name);

    friend bool operator==(const Exclusion&, const Exclusion&) = default;
};

} // namespace orlen
