#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orlen {

/// Shrinks a picture that comes row by row, in any order, so that no whole picture is ever in memory: each
/// pixel of the result is the mean of those that it stands for.
class RowShrinker {
public:
    /// The result fits into the box and is never larger than the picture.
    RowShrinker(PixelSize picture, PixelSize box);

    /// `row`: three bytes for each pixel of the picture's width. `y`: from the top.
    void add(int y, std::span<const std::uint8_t> row);

    /// Rows of the result of which nothing came are white.
    [[nodiscard]] RgbImage image() const;

private:
    [[nodiscard]] int columnStart(int column) const;

    int m_width;
    int m_height;
    RgbImage m_image;                  ///< of the size of the result
    std::vector<std::uint32_t> m_sums; ///< of all that a pixel of the result stands for
    std::vector<std::uint32_t> m_rows; ///< how many rows came for each row of the result
};

} // namespace orlen
