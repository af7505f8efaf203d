#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Counts folders by their names. Pure; any thread.
namespace orlen::AskReader {

/// How many folders have a name, and which take the most: "how many node_modules folders". Nothing if none
/// has it, or the question does not say the name before the word for folders.
[[nodiscard]] std::optional<Answer> foldersNamed(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
