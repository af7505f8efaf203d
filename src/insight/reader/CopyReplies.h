#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

/// Answers about copies of one file. Pure; any thread.
namespace orlen::AskReader {

/// "Is report.pdf there twice": what the scan lists as duplicates of it, else files that are named alike and
/// take the same space. Nothing unless the question names a file that there is.
[[nodiscard]] std::optional<Answer> aboutCopies(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
