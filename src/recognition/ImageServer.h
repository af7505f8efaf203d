#pragma once

#include "platform/images/ImageAnalysis.h"

#include <chrono>
#include <optional>

/// The work of a recognizer process. One thread.
namespace orlen::ImageServer {

/// What an open file shows; nothing when it is no picture that can be read.
[[nodiscard]] std::optional<ImageAnalysis> analysis(int file);

struct Limits {
    std::chrono::seconds picture;   ///< one that takes longer ends the process: whoever asked may be gone
    std::chrono::milliseconds idle; ///< without a question for so long
};

/// Answers one question after the other, until the other end of the socket is closed or none comes.
void serve(int socket, const Limits& limits);

} // namespace orlen::ImageServer
