#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/images/ImageAnalysis.h"
#include "platform/images/SmallPicture.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <sys/types.h>

namespace orlen {

/// One recognizer process, which ends with this object. One call at a time.
class ImageWorker {
public:
    enum class End {
        answered,
        unreachable, ///< it had ended before it was asked; the picture had no part in it
        failed,      ///< it died, said nonsense, was too slow or was stopped: it has to go
    };
    template <typename Answer>
    struct Outcome {
        End end = End::failed;
        std::optional<Answer> answer; ///< present only when answered, and not for what is no picture
    };
    struct Limits {
        std::size_t memory;              ///< bytes of address space
        std::chrono::milliseconds limit; ///< for starting, and for one picture
        std::chrono::milliseconds idle;  ///< without a picture it ends itself
    };

    /// Starts one and waits until it is ready; nothing when it is not.
    [[nodiscard]] static std::unique_ptr<ImageWorker>
    started(const std::string& program, const Limits& limits, const std::stop_token& stop);

    /// Kills it.
    ~ImageWorker();
    ImageWorker(const ImageWorker&) = delete;
    ImageWorker& operator=(const ImageWorker&) = delete;

    /// What an open file shows; at once when stopped.
    [[nodiscard]] Outcome<ImageAnalysis> analyze(int file, const std::stop_token& stop);
    /// The picture in an open file made small; at once when stopped.
    [[nodiscard]] Outcome<SmallPicture> smallPicture(int file, const PictureBound& bound, PictureUse use,
                                                     const std::stop_token& stop);

    /// Hangs up when the process ends. Only to wait for that.
    [[nodiscard]] int socket() const { return m_socket.get(); }
    [[nodiscard]] bool hasEnded() const;

private:
    ImageWorker(pid_t process, UniqueFd socket, std::chrono::milliseconds limit)
        : m_process(process), m_socket(std::move(socket)), m_limit(limit)
    {
    }
    [[nodiscard]] End ask(std::string_view question, std::span<const int> files, std::string& answer,
                          const std::stop_token& stop);
    [[nodiscard]] std::optional<std::string> nextMessage(const std::stop_token& stop) const;

    pid_t m_process;
    UniqueFd m_socket;
    std::chrono::milliseconds m_limit;
};

} // namespace orlen
