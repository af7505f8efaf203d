#pragma once

#include <cstdint>
#include <optional>

namespace orlen {

struct PixelSize {
    int width = 0;  ///< pixels
    int height = 0; ///< pixels

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// A part of a picture that is upright.
struct PixelRect {
    int x = 0; ///< pixels from the left
    int y = 0; ///< pixels from the top
    int width = 0;
    int height = 0;

    /// What of it lies in a picture of this size; empty if nothing does.
    [[nodiscard]] PixelRect within(PixelSize picture) const;
    [[nodiscard]] bool isEmpty() const { return width <= 0 || height <= 0; }

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// The size a picture is wanted in. Pictures are scaled down, never up. Pure; any thread.
struct PictureBound {
    enum class Fit {
        inside, ///< the whole picture, fitted into the size
        cover,  ///< the middle of the picture, filling the size
    };

    PixelSize size;
    Fit fit = Fit::inside;
    /// Only this part is wanted, fitted into the size; absent: all of the picture.
    std::optional<PixelRect> part = std::nullopt;
    /// Only a thumbnail is wanted, made of a file that was last changed then, in seconds since 1970.
    std::optional<std::int64_t> madeOf = std::nullopt;

    /// The same for a picture stored sideways.
    [[nodiscard]] PictureBound turned() const { return {{size.height, size.width}, fit, part, madeOf}; }
    /// The size the whole picture must be shrunk to fit into.
    [[nodiscard]] PixelSize box(PixelSize picture) const;
    /// How much of the middle of a shrunk picture is shown.
    [[nodiscard]] PixelSize shown(PixelSize shrunk) const;
};

} // namespace orlen
