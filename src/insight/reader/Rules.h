#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

namespace orlen::AskReader {

/// What the first rule that understands all of the question replies; nothing if none does. Pure; any thread.
[[nodiscard]] std::optional<Answer> replyByRule(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
