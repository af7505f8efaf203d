#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Counts folders by their names. Pure; any thread.
namespace orlen::AskReader {

/// How many folders have a name, and which take the most: "how many node_modules folders". Nothing
/// unless the question says the name right before the word for folders.
[[nodiscard]] std::optional<Answer> foldersNamed(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
