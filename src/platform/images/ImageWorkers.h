#pragma once

#include "platform/images/ImageAnalysis.h"
#include "platform/images/SmallPicture.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>

namespace orlen {

/// A few recognizers: processes that decode and recognise pictures, each with limits of its own, so that a
/// picture which crashes, hangs or bloats a decoder costs its time limit and nothing else. They are started
/// when first needed and end with this object, and with this process. Any thread; each call has one for
/// itself.
class ImageWorkers {
public:
    struct Options {
        /// The recognizer's executable; when empty, no picture is recognised.
        std::string program = recognizer();
        std::size_t memory = 1'500UL * 1024 * 1024; ///< bytes of address space a worker may use
        std::chrono::milliseconds limit{10'000};    ///< for one picture
        std::chrono::milliseconds idle{20'000};     ///< a worker that has nothing to do for so long ends
    };

    /// The recognizer that was built or installed with this program; empty when it is not there.
    [[nodiscard]] static std::string recognizer();

    explicit ImageWorkers(Options options);
    ~ImageWorkers();
    ImageWorkers(const ImageWorkers&) = delete;
    ImageWorkers& operator=(const ImageWorkers&) = delete;

    /// What a regular file shows. Blocks until a worker has answered; a worker that dies or takes too long is
    /// replaced. Nothing when the file cannot be opened without following a link, is no picture, or the
    /// worker did not answer; at once when stopped.
    [[nodiscard]] std::optional<ImageAnalysis> analyze(const std::string& path, const std::stop_token& stop);

    /// The picture in a regular file, made small; likewise. Nothing for a bound that is empty; a side longer
    /// than 4,096 pixels is taken as that long.
    [[nodiscard]] std::optional<SmallPicture> smallPicture(const std::string& path, const PictureBound& bound,
                                                           const std::stop_token& stop);
    /// The icon in a regular file, all of it inside the size; likewise.
    [[nodiscard]] std::optional<SmallPicture> icon(const std::string& path, PixelSize size,
                                                   const std::stop_token& stop);

private:
    class Pool;
    [[nodiscard]] std::optional<SmallPicture> read(const std::string& path, const PictureBound& bound,
                                                   PictureUse use, const std::stop_token& stop);

    std::unique_ptr<Pool> m_pool;
};

} // namespace orlen
