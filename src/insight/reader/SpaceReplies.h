#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Answers about the disk as a whole. Each gives nothing when it is not sure of the question.
/// Pure; any thread.
namespace orlen::AskReader {

/// Free, used and total space; whether a size fits.
[[nodiscard]] std::optional<Answer> spaceNow(const Question& question, const AskContext& context);

/// What fills the disk: categories, the largest findings, what grows.
[[nodiscard]] std::optional<Answer> whyFull(const Question& question, const AskContext& context);

/// The day when the disk will be full at the present pace, and whether that is before the date asked for.
[[nodiscard]] std::optional<Answer> fullWhen(const Question& question, const AskContext& context);

/// Findings that together free the size asked for: what is rated Safe first.
[[nodiscard]] std::optional<Answer> roomFor(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
