#pragma once

#include "insight/AskContext.h"
#include "insight/AskEngine.h"
#include "insight/reader/Question.h"
#include "model/Message.h"

#include <optional>
#include <vector>

/// Answers about applications that nobody uses. Pure; any thread.
namespace orlen::AskReader {

/// A line about the applications that were not used since the date in the question, or for half a year
/// without one, and a line about those of which nobody knows. Never empty.
[[nodiscard]] std::vector<Message> unusedApps(const Question& question, const AskContext& context);

/// When the application that the question names was last used; nothing if none is known by this name.
[[nodiscard]] std::optional<Answer> lastUseOf(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
