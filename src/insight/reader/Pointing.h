#pragma once

#include "insight/reader/Question.h"

/// What a question says of what was said before it. Pure; any thread.
namespace orlen::AskReader {

/// "Only in Pictures", "and why": means little without what was said before.
[[nodiscard]] bool pointsBack(const Question& question);

/// "How much would deleting them free": without what was spoken of, the answer would be about all there is.
[[nodiscard]] bool isOnlyOfThem(const Question& question);

/// Whether it wants a list to go on: "5 more", "the others".
[[nodiscard]] bool asksForMore(const Question& question);

} // namespace orlen::AskReader
