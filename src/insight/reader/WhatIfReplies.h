#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <cstdint>
#include <optional>

/// What would be if things were removed. Each gives nothing when it is not sure of the question. Pure; any
/// thread.
namespace orlen::AskReader {

/// What the files, folders, kinds and ratings that the question names take together, and the free space
/// without them.
[[nodiscard]] std::optional<Answer> freedByThem(const Question& question, const AskContext& context);

/// The same of findings: how much removing all of them together would free; proposes what of it is not rated
/// Keep.
[[nodiscard]] std::optional<Answer> freedBySubject(const Question& question, const AskContext& context);

/// "Would emptying the Trash get me 5 GB?": yes or no, and what they take.
[[nodiscard]] std::optional<Answer> isThatMuch(const Question& question, const AskContext& context);

/// How many files the kinds that the question names have together, and their size; nothing if it names one,
/// or folders.
[[nodiscard]] std::optional<Answer> sumOfThem(const Question& question, const AskContext& context);

/// The free space with so many bytes less used; empty if nobody knows what is free.
[[nodiscard]] Message freeWithout(std::int64_t bytes, const AskContext& context);

} // namespace orlen::AskReader
