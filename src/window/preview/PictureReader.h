#pragma once

#include <QImage>
#include <QSize>

#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

/// Reads the user's pictures and the icons of programs for showing them, told apart by their content and not
/// by their name. They are decoded by processes of their own (see ImageWorkers), so none of them can crash
/// the window or take its memory. Links are not followed. Any thread; all but `looksReadable` block.
namespace orlen::PictureReader {

enum class Fit {
    inside, ///< the whole picture, at most as large as asked for
    cover,  ///< the middle of the picture, in the shape that is asked for
};

struct Picture {
    QImage image; ///< upright, never enlarged
    QSize whole;  ///< pixels of the picture in the file, upright
};

/// Whether the name is that of a picture. Says nothing of the content.
[[nodiscard]] bool looksReadable(std::string_view path);

/// The picture made small enough for `bound` pixels. Nothing when it cannot be read; at once when stopped.
[[nodiscard]] std::optional<Picture> read(const std::string& path, const QSize& bound, Fit fit,
                                          const std::stop_token& stop);

/// The icon of a program, its see-through parts kept, made to fit; it grows only if it is drawn in lines.
/// Null when it cannot be read.
[[nodiscard]] QImage icon(const std::string& path, const QSize& size);

/// The program that decodes, in place of the one that was built or installed with this program. Before the
/// first picture.
void setRecognizer(const std::string& program);

} // namespace orlen::PictureReader
