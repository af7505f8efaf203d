#pragma once

namespace orlen {

struct PixelSize {
    int width = 0;  ///< pixels
    int height = 0; ///< pixels

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// The size a picture is wanted in. Pictures are scaled down, never up. Pure; any thread.
struct PictureBound {
    enum class Fit {
        inside, ///< the whole picture, fitted into the size
        cover,  ///< the middle of the picture, filling the size
    };

    PixelSize size;
    Fit fit = Fit::inside;

    /// The same for a picture stored sideways.
    [[nodiscard]] PictureBound turned() const { return {{size.height, size.width}, fit}; }
    /// The size the whole picture must be shrunk to fit into.
    [[nodiscard]] PixelSize box(PixelSize picture) const;
    /// How much of the middle of a shrunk picture is shown.
    [[nodiscard]] PixelSize shown(PixelSize shrunk) const;
};

} // namespace orlen
