#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/images/ArchiveContents.h"
#include "platform/images/ImageAnalysis.h"
#include "platform/images/MediaFacts.h"
#include "platform/images/RecognizerRole.h"
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

/// One recognizer process, which is killed with this object. One call at a time.
class ImageWorker {
public:
    enum class End {
        answered,
        unreachable, ///< it had exited before the question; not the picture's fault
        failed,      ///< it crashed, sent garbage, was too slow or was stopped: discard it
    };
    template <typename Answer>
    struct Outcome {
        End end = End::failed;
        std::optional<Answer> answer; ///< only if answered, and the file is a picture
    };
    struct Limits {
        std::size_t memory;              ///< bytes of address space
        std::chrono::milliseconds limit; ///< for starting, and for one picture
        std::chrono::milliseconds idle;  ///< exits by itself after this long without a picture
    };

    /// Starts one and waits until it is ready; nothing on failure.
    [[nodiscard]] static std::unique_ptr<ImageWorker> started(const std::string& program,
                                                              const Limits& limits, RecognizerRole role,
                                                              const std::stop_token& stop);

    /// Kills it.
    ~ImageWorker();
    ImageWorker(const ImageWorker&) = delete;
    ImageWorker& operator=(const ImageWorker&) = delete;

    /// Analyses an open file. Returns at once when stopped.
    [[nodiscard]] Outcome<ImageAnalysis> analyze(int file, const std::stop_token& stop);
    /// The picture in an open file, made small. Returns at once when stopped.
    [[nodiscard]] Outcome<SmallPicture> smallPicture(int file, const PictureBound& bound, PictureUse use,
                                                     const std::stop_token& stop);
    /// What lies in the archive in an open file. Returns at once when stopped.
    [[nodiscard]] Outcome<ArchiveContents> archive(int file, const std::stop_token& stop);
    /// What the sound file or film in an open file tells of itself. Returns at once when stopped.
    [[nodiscard]] Outcome<MediaFacts> media(int file, const std::stop_token& stop);

    /// Hangs up when the process exits. Only for waiting on that.
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
