#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Answers about several files and folders that a question names. Pure; any thread.
namespace orlen::AskReader {

/// What several named files and folders take together; nothing unless the question asks for the size or
/// the removal of at least two, and each is found: "both v18 and v20 in .nvm".
[[nodiscard]] std::optional<Answer> sumOfNamed(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
