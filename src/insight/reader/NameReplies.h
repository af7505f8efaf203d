#pragma once

#include "insight/AskEngine.h"
#include "insight/reader/Question.h"

#include <optional>

namespace orlen::AskReader {

/// What the scan knows about the file, folder or program that the question names: its rating and reason, its
/// size, what a clean-up would do, or why it is protected. Nothing if the question names nothing.
[[nodiscard]] std::optional<Answer> aboutName(const Question& question, const AskContext& context);

/// The same for a text that is the name of a file or a protected place, whatever is asked about it. Nothing
/// if other words stand beside it that are not understood.
[[nodiscard]] std::optional<Answer> aboutSureName(const Question& question, const AskContext& context);

/// The few files whose names hold all words of the question that could be part of one; nothing if none does.
[[nodiscard]] std::optional<Answer> aboutWordsOfName(const Question& question, const AskContext& context);

/// Where something can be got back from whose name holds what else the question speaks of: "my old movie".
/// Nothing if there is none.
[[nodiscard]] std::optional<Answer> backByWords(const Question& question, const AskContext& context);

} // namespace orlen::AskReader
