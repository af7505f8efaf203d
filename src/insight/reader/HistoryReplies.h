#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>
#include <vector>

/// Answers about past clean-ups. Each gives nothing when it is not sure of the question.
/// Pure; any thread.
namespace orlen::AskReader {

/// When the last one was and how much it moved; that there was none.
[[nodiscard]] Message lastCleanUpOf(const std::vector<CleanRecord>& history);

/// When the last one was and what it moved.
[[nodiscard]] std::optional<Answer> lastCleanUp(const Question& question, const AskContext& context);

/// What the last one moved of a program or of what has a name; nothing if there was nothing of it.
[[nodiscard]] std::optional<Answer> lastCleanUpFrom(const Question& question, const AskContext& context);

/// How many there were and what they moved in all.
[[nodiscard]] std::optional<Answer> allCleanUps(const Question& question, const AskContext& context);

/// How long the Trash keeps what a clean-up moved; nothing of anything else.
[[nodiscard]] std::optional<Answer> howLongItIsKept(const Question& question, const AskContext& context);

/// How to put things back.
[[nodiscard]] std::optional<Answer> howToUndo(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
