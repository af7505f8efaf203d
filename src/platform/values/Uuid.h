#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// A 128-bit identity.
struct Uuid {
    std::array<std::uint8_t, 16> bytes{};

    /// A fresh random one (version 4) from the system's generator. Any thread.
    [[nodiscard]] static Uuid random();
    /// Reads the hyphenated form, letters of either case; nothing for any other text.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);
    /// The hyphenated form in capital letters.
    [[nodiscard]] std::string text() const;

    friend bool operator==(const Uuid&, const Uuid&) = default;
};

} // namespace orlen
