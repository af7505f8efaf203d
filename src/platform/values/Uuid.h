#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// A UUID.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// A new random one (version 4) from the system's generator. Any thread.
    [[nodiscard]] static Uuid random();
    /// Parses the hyphenated form in either case; nothing for any other text.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);
    /// The hyphenated form in upper case.
    [[nodiscard]] std::string text() const;

    friend bool operator==(const Uuid&, const Uuid&) = default;
};

} // namespace orlen
