#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Answers about what grew between two scans. Pure; any thread.
namespace orlen::AskReader {

/// The folders that grew most, in a period or since one if the question names it, else since the last scan.
[[nodiscard]] std::optional<Answer> whatGrew(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
