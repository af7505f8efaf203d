#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Answers about what starts when the person logs in. Pure; any thread.
namespace orlen::AskReader {

/// All of it.
[[nodiscard]] Answer startup(const AskContext& context);

/// Whether the item that the question names starts, and where its switch is. Nothing if the question is about
/// something else.
[[nodiscard]] std::optional<Answer> startupOf(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
