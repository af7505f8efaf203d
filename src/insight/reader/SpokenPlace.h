#pragma once

#include "insight/AskContext.h"
#include "insight/Conversation.h"
#include "insight/reader/Question.h"

#include <optional>

/// The folder or program that was spoken of last. Pure; any thread.
namespace orlen::AskReader {

/// The folder, as it stands behind "in"; nothing if none was spoken of.
[[nodiscard]] std::optional<Phrase> placeSaid(const AskContext& context, const Conversation::Said& before);

/// "And its cache?": with the name of the program that was spoken of. Nothing if none was.
[[nodiscard]] std::optional<Question> partOfLast(const Question& question, const Conversation::Said& before);

/// The question with the folder that was spoken of last as its place: "and how many files are in it?".
/// Nothing if it is not about a place, or none was spoken of.
[[nodiscard]] std::optional<Question> inPlaceOfLast(const Question& question, const AskContext& context,
                                                    const Conversation::Said& before);

} // namespace orlen::AskReader
