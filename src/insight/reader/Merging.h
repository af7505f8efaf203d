#pragma once

#include "insight/reader/Question.h"

namespace orlen::AskReader {

/// The question with phrases put together that mean something only together: "not" and "opened", "pdf" and
/// "files", "folder" and "videos", "photos" and "blurry"; without a greeting before a question. Pure.
[[nodiscard]] Question merged(const Question& question);

} // namespace orlen::AskReader
