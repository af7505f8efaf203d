#pragma once

#include "insight/AskContext.h"
#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// When the disk will be full.
namespace orlen::AskReader {

/// The day, and whether it comes before the one the question names.
[[nodiscard]] std::optional<Answer> fullWhen(const Question& question, const AskContext& context);
/// The same for a question about space on a day to come; nothing if the day is past.
[[nodiscard]] std::optional<Answer> roomLater(const Question& question, const AskContext& context);
/// How fast used space grows.
[[nodiscard]] std::optional<Answer> paceOfGrowth(const Question& question, const AskContext& context);

/// Which category grows the fastest; empty if none does notably.
[[nodiscard]] Message fastestGrowth(const Prediction& prediction);

} // namespace orlen::AskReader
