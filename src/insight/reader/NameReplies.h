#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

namespace orlen::AskReader {

/// What the scan knows about the file, folder or program that the question names: its rating and reason, its
/// size, what a clean-up would do, or why it is protected. Nothing if the question names nothing.
[[nodiscard]] std::optional<Answer> aboutName(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
