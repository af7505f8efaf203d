#pragma once

#include "platform/images/ImageAnalysis.h"

#include <chrono>
#include <optional>

/// The work of a recognizer process. One thread.
namespace orlen::ImageServer {

/// What an open file shows; nothing when it is no picture that can be read.
[[nodiscard]] std::optional<ImageAnalysis> analysis(int file);

/// Answers for one file after the other until the other end of the socket is closed. A picture that takes
/// longer than the limit ends the process: whoever asked may be gone.
void serve(int socket, std::chrono::seconds limit);

} // namespace orlen::ImageServer
