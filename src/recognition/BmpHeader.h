#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace orlen {

/// Reads a file's bytes from `offset` on into the buffer and returns how many there were.
using ByteSource = std::function<std::size_t(std::int64_t offset, std::span<std::uint8_t> buffer)>;

/// The header of a BMP file.
struct BmpHeader {
    enum class Rows { bottomUp, topDown };
    using Colour = std::array<std::uint8_t, 3>; ///< red, green, blue

    /// One channel of a pixel stored as a single number.
    struct Channel {
        std::uint32_t mask = 0; ///< 0: no such channel
        /// The channel's value, 0 to 255.
        [[nodiscard]] std::uint8_t of(std::uint32_t pixel) const;
    };

    int width = 0;
    int height = 0;
    Rows rows = Rows::bottomUp;
    int bits = 0; ///< per pixel: 1, 4, 8, 16, 24 or 32
    bool isRunLength = false;
    std::int64_t pixelOffset = 0;      ///< bytes from the start of the file
    std::array<Colour, 256> palette{}; ///< black where the file has none
    std::array<Channel, 4> channels{}; ///< red, green, blue, alpha; for 16 and 32 bits

    /// Bytes from one row to the next, if not run-length encoded.
    [[nodiscard]] std::int64_t stride() const { return (std::int64_t{width} * bits + 31) / 32 * 4; }

    /// Nothing if this is not a supported BMP file, or larger than any picture should be.
    [[nodiscard]] static std::optional<BmpHeader> read(const ByteSource& source);
};

} // namespace orlen
