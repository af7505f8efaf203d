#pragma once

#include "insight/AskEngine.h"
#include "insight/Conversation.h"
#include "insight/reader/Question.h"

#include <optional>

namespace orlen::AskReader {

/// An answer and the question that it answers, as it would stand alone.
struct Reply {
    Answer answer;
    Question question;
};

/// Answers what only makes sense after what was said before: "and the second one?", "only in Pictures",
/// "why?", "the oldest ones", "can I delete it?". Nothing if it is not sure. Pure; any thread.
[[nodiscard]] std::optional<Reply> followUp(const Question& question, const AskContext& context,
                                            const Conversation& before);

} // namespace orlen::AskReader
