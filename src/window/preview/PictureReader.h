#pragma once

#include "platform/images/ArchiveContents.h"
#include "platform/images/MediaFacts.h"

#include <QImage>
#include <QRect>
#include <QSize>

#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

/// Reads pictures, program icons, pages, lists of archives and facts of sound files for
/// display. The format is detected from the
/// content, not the name. Separate processes decode them (see ImageWorkers), so none can crash the window or
/// use up its memory. Does not follow links. Any thread; all but the questions about names and
/// `setRecognizer` block.
namespace orlen::PictureReader {

enum class Fit {
    inside, ///< the whole picture, at most the requested size
    cover,  ///< the middle of the picture, cropped to the requested shape
};

struct Picture {
    QImage image; ///< upright, never enlarged
    QSize whole;  ///< size of the original in pixels, upright
};

/// Whether the name looks like a picture's. The content may differ.
[[nodiscard]] bool looksReadable(std::string_view path);

/// Whether the name looks like a document's whose pages can be drawn.
[[nodiscard]] bool looksLikeDocument(std::string_view path);
struct Page {
    QImage image;
    QSize points; ///< its size
    int count = 0;
};
/// The first page of a document, scaled to fit into `bound` pixels. Nothing when it cannot be read, or at
/// once when stopped.
[[nodiscard]] std::optional<Page> page(const std::string& path, const QSize& bound,
                                       const std::stop_token& stop);

/// Whether the name looks like that of a sound file, or of a film that tells as much of itself.
[[nodiscard]] bool looksLikeMedia(std::string_view path);
/// What it tells. Nothing when it cannot be read, or at once when stopped.
[[nodiscard]] std::optional<MediaFacts> media(const std::string& path, const std::stop_token& stop);

/// Whether the name looks like an archive's.
[[nodiscard]] bool looksLikeArchive(std::string_view path);
/// What lies in an archive. Nothing when it cannot be read, or at once when stopped.
[[nodiscard]] std::optional<ArchiveContents> archive(const std::string& path, const std::stop_token& stop);

/// The picture scaled down to `bound` pixels. Nothing when it cannot be read, or at once when stopped.
[[nodiscard]] std::optional<Picture> read(const std::string& path, const QSize& bound, Fit fit,
                                          const std::stop_token& stop);

/// Whether the name looks like that of a file of which file managers make thumbnails, and that is not read
/// itself to show one.
[[nodiscard]] bool looksThumbnailed(std::string_view path);
/// The thumbnail that a file manager made of the file as it is now; likewise.
[[nodiscard]] std::optional<Picture> thumbnail(const std::string& path, const QSize& bound, Fit fit,
                                               const std::stop_token& stop);

/// A part of the picture, in its upright pixels, scaled down to fit into `bound` pixels. Likewise; nothing
/// for a part that lies beside it.
[[nodiscard]] std::optional<Picture> readPart(const std::string& path, const QRect& part, const QSize& bound,
                                              const std::stop_token& stop);

/// What tells similar photos apart. Nothing when it cannot be read, or at once when stopped.
struct Traits {
    QSize whole;          ///< upright
    double sharpness = 0; ///< see Sharpness
    bool isFromCamera = false;
    friend bool operator==(const Traits&, const Traits&) = default;
};
[[nodiscard]] std::optional<Traits> traits(const std::string& path, const std::stop_token& stop);

/// The icon with its transparency, scaled to fit; enlarged only if it is a vector drawing. Null when it
/// cannot be read.
[[nodiscard]] QImage icon(const std::string& path, const QSize& size);

/// Replaces the decoding program that was built or installed with this one. Call before the first picture.
void setRecognizer(const std::string& program);

} // namespace orlen::PictureReader
