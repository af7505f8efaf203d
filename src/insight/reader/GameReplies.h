#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

namespace orlen::AskReader {

/// The games of Steam by title, and what the folders of other games take. Nothing if the question asks for
/// more than that. Pure; any thread.
[[nodiscard]] std::optional<Answer> games(const Question& question, const AskContext& context);

/// Where the game of Steam lies that a question names, how big it is, and that Steam removes it. Nothing if
/// it is no such game.
[[nodiscard]] std::optional<Answer> removingGame(const Question& question, const AskContext& context);

/// When a file of the game of Steam that a question names was last read; nothing if it is no such game.
[[nodiscard]] std::optional<Answer> lastReadOfGame(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
