#pragma once

namespace orlen {

struct PixelSize {
    int width = 0;  ///< pixels
    int height = 0; ///< pixels

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// How large a picture is wanted. A picture is made smaller for it, never larger. Pure; any thread.
struct PictureBound {
    enum class Fit {
        inside, ///< the whole picture, at most of the size
        cover,  ///< the middle of the picture, in the shape of the size
    };

    PixelSize size;
    Fit fit = Fit::inside;

    /// The same for a picture that lies on its side.
    [[nodiscard]] PictureBound turned() const { return {{size.height, size.width}, fit}; }
    /// The size that all of a picture has to be shrunk into.
    [[nodiscard]] PixelSize box(PixelSize picture) const;
    /// How much of the middle of a picture that has been shrunk is wanted.
    [[nodiscard]] PixelSize shown(PixelSize shrunk) const;
};

} // namespace orlen
