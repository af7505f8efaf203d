#pragma once

#include "platform/images/PictureBound.h"
#include "platform/images/RgbImage.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace orlen {

/// Shrinks a picture row by row, in any order, without ever holding all of it: each result pixel is the mean
/// of the pixels it covers.
class RowShrinker {
public:
    /// The result fits into the box and is never enlarged.
    RowShrinker(PixelSize picture, PixelSize box);

    /// `row`: three bytes per pixel of the picture's width. `y`: from the top.
    void add(int y, std::span<const std::uint8_t> row);

    /// Result rows that received no input are white.
    [[nodiscard]] RgbImage image() const;

private:
    [[nodiscard]] int columnStart(int column) const;

    int m_width;
    int m_height;
    RgbImage m_image;                  ///< of the size of the result
    std::vector<std::uint32_t> m_sums; ///< per result pixel
    std::vector<std::uint32_t> m_rows; ///< input rows per result row
};

} // namespace orlen
