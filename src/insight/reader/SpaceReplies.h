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

/// How full the disk is.
[[nodiscard]] std::optional<Answer> fullNow(const Question& question, const AskContext& context);

/// What takes the most space on the whole disk.
[[nodiscard]] std::optional<Answer> whatIsBiggest(const Question& question, const AskContext& context);

/// What takes up space in the folder that the question names.
[[nodiscard]] std::optional<Answer> whatTakesIn(const Question& question, const AskContext& context);

/// The folders that take the most space, directly in the one that the question names.
[[nodiscard]] std::optional<Answer> biggestFolders(const Question& question, const AskContext& context);

/// How much of the disk is free and used.
[[nodiscard]] Message volume(const StorageBreakdown& breakdown);

/// "Does my home folder fill the disk?"
[[nodiscard]] std::optional<Answer> fullByHome(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
