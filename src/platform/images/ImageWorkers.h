#pragma once

#include "platform/images/ArchiveContents.h"
#include "platform/images/ImageAnalysis.h"
#include "platform/images/MediaFacts.h"
#include "platform/images/SmallPicture.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace orlen {

/// Pools of recognizers, one for each role: processes that decode and recognise pictures, each with its own
/// limits, so that a picture that crashes, hangs or bloats a decoder costs its time limit and nothing else.
/// They are started on demand and end with this object or this process. Any thread; each call uses a worker
/// of its own.
class ImageWorkers {
public:
    struct Options {
        /// The recognizer's executable; if empty, no picture is recognised.
        std::string program = recognizer();
        std::size_t memory = 1'500UL * 1024 * 1024; ///< bytes of address space a worker may use
        std::chrono::milliseconds limit{10'000};    ///< for one picture
        std::chrono::milliseconds idle{20'000};     ///< a worker without work exits after this long
    };

    /// The recognizer built or installed with this program; empty if it is missing.
    [[nodiscard]] static std::string recognizer();

    explicit ImageWorkers(const Options& options);
    ~ImageWorkers();
    ImageWorkers(const ImageWorkers&) = delete;
    ImageWorkers& operator=(const ImageWorkers&) = delete;

    /// Analyses the picture in a regular file. Blocks until a worker has answered; a worker that crashes or
    /// is too slow is replaced. Nothing if the file cannot be opened without following a link, is not a
    /// picture, or gets no answer. Returns at once when stopped.
    [[nodiscard]] std::optional<ImageAnalysis> analyze(const std::string& path, const std::stop_token& stop);

    /// The picture in a regular file, or a part of it, made small; likewise. Nothing for an empty bound or a
    /// part that lies beside the picture; a side is limited to 4,096 pixels.
    [[nodiscard]] std::optional<SmallPicture> smallPicture(const std::string& path, const PictureBound& bound,
                                                           const std::stop_token& stop);
    /// The icon in a regular file, fitted into the size; likewise.
    [[nodiscard]] std::optional<SmallPicture> icon(const std::string& path, PixelSize size,
                                                   const std::stop_token& stop);
    /// The first page of the document in a regular file, fitted into the size; likewise.
    [[nodiscard]] std::optional<SmallPicture> page(const std::string& path, PixelSize size,
                                                   const std::stop_token& stop);
    /// What lies in the archive in a regular file; likewise.
    [[nodiscard]] std::optional<ArchiveContents> archive(const std::string& path,
                                                         const std::stop_token& stop);
    /// What the sound file, or the film, in a regular file tells of itself; likewise.
    [[nodiscard]] std::optional<MediaFacts> media(const std::string& path, const std::stop_token& stop);

private:
    class Pool;
    [[nodiscard]] std::optional<SmallPicture> read(const std::string& path, const PictureBound& bound,
                                                   PictureUse use, const std::stop_token& stop);

    std::unique_ptr<Pool> m_pictures;
    std::unique_ptr<Pool> m_pages;
    std::unique_ptr<Pool> m_media;
};

} // namespace orlen
