#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <cstdint>
#include <optional>
#include <string>

/// Answers about a kind of finding, a category or a folder. Each gives nothing when it is not sure of the
/// question. Pure; any thread.
namespace orlen::AskReader {

/// Bytes of a folder with everything in it; nothing if nobody knows.
[[nodiscard]] std::optional<std::int64_t> folderSize(const AskContext& context, const std::string& folder);

/// Its size, and how many items of it the scan lists.
[[nodiscard]] std::optional<Answer> sizeOfSubject(const Question& question, const AskContext& context);

/// What it is, and what the scan lists of it.
[[nodiscard]] std::optional<Answer> whatSubjectIs(const Question& question, const AskContext& context);

/// Whether it may be removed: its ratings, or why it is protected.
[[nodiscard]] std::optional<Answer> removingSubject(const Question& question, const AskContext& context);

/// The sizes of two subjects that the question compares, one below the other.
[[nodiscard]] std::optional<Answer> comparison(const Question& question, const AskContext& context);

/// What has not been opened for long.
[[nodiscard]] std::optional<Answer> neverOpened(const Question& question, const AskContext& context);

/// What one finding is, its size and its rating.
[[nodiscard]] Answer aboutFinding(const Finding& finding);

/// "Why is the virtual machine not suggested": how it is rated, if it is.
[[nodiscard]] std::optional<Answer> whyNotSuggested(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
