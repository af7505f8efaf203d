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

/// "Photos and videos": the question once for each of them. One question if they are not alike; none if one
/// of them is nothing that is known.
[[nodiscard]] std::vector<Question> distributed(const Question& question);

/// One answer below the other.
[[nodiscard]] Answer together(std::vector<Answer> answers);

/// "Where did X go, and can I get it back": the second part is about what the first one names, and tells
/// both. Nothing if the parts ask for something else; "can I delete X and get it back" is about what may
/// come.
[[nodiscard]] std::optional<Question> backOfNamed(const std::vector<Question>& parts);

} // namespace orlen::AskReader
