#pragma once

#include "insight/AskContext.h"
#include "insight/AskEngine.h"
#include "insight/reader/Exclusions.h"
#include "insight/reader/Question.h"

#include <optional>

/// What may go, and how to make room. Each gives nothing when it is not sure of the question. Pure; any
/// thread.
namespace orlen::AskReader {

/// What is rated Safe, proposed.
[[nodiscard]] Answer safeToFree(const AskContext& context, const Exclusions& exclusions = {});

/// What is rated Safe, less what the question leaves out; proposes it.
[[nodiscard]] std::optional<Answer> whatMayGo(const Question& question, const AskContext& context);
/// What is rated Safe, then Review, until the size asked for is reached; proposes it.
[[nodiscard]] std::optional<Answer> roomFor(const Question& question, const AskContext& context);
/// What could go from the Downloads folder.
[[nodiscard]] std::optional<Answer> cleaningDownloads(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
