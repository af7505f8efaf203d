#pragma once

#include <QImage>
#include <QSize>

#include <string>
#include <string_view>

/// Reads the user's pictures: JPEG, PNG, WebP, GIF, BMP and TIFF, told apart by their content. A picture is
/// turned upright, and one that would need more than 256 MB of memory is refused. Links are not followed.
/// Any thread; all but `looksReadable` block on the disk.
namespace orlen::PictureReader {

enum class Fit {
    inside, ///< the whole picture, at most as large as asked for
    cover,  ///< the middle of the picture, exactly the shape that is asked for
};

/// Whether the name is that of a picture. Says nothing of the content.
[[nodiscard]] bool looksReadable(std::string_view path);

/// Width and height in pixels, upright; invalid for what is no readable picture.
[[nodiscard]] QSize sizeOf(const std::string& path);

/// The picture made small enough for `bound` pixels, never enlarged; null when it cannot be read.
[[nodiscard]] QImage read(const std::string& path, const QSize& bound, Fit fit);

} // namespace orlen::PictureReader
