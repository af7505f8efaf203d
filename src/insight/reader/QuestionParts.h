#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>
#include <vector>

/// Several questions in one, and their answers in one. Pure; any thread.
namespace orlen::AskReader {

/// The questions in one, if each can stand alone.
[[nodiscard]] std::vector<Question> partsOf(const Question& question);

/// The question without clauses at its ends that name nothing and set no condition: "…, what do you suggest".
/// Nothing if it has none.
[[nodiscard]] std::optional<Question> undressed(const Question& question);

/// "Photos and videos": the question once for each of them. One question if they are not alike.
[[nodiscard]] std::vector<Question> distributed(const Question& question);

/// One answer below the other.
[[nodiscard]] Answer together(std::vector<Answer> answers);

} // namespace orlen::AskReader
