#pragma once

#include "platform/images/ImageAnalysis.h"

#include <chrono>
#include <optional>

/// The main loop of a recognizer process. One thread.
namespace orlen::ImageServer {

/// Analyses an open file; nothing if it is not a readable picture.
[[nodiscard]] std::optional<ImageAnalysis> analysis(int file);

struct Limits {
    /// A picture that takes longer ends the process, since whoever asked may be gone.
    std::chrono::seconds picture;
    std::chrono::milliseconds idle; ///< time without a question before it returns
};

/// Answers questions one after another, until the other end of the socket is closed or none arrives in time.
void serve(int socket, const Limits& limits);

} // namespace orlen::ImageServer
