#pragma once

#include "insight/AskEngine.h"
#include "insight/Conversation.h"

#include <optional>
#include <string_view>

/// Reads a question word by word and answers only if it understands all of it; everything else is left to the
/// matcher. Deterministic; any thread, but not the main one when the context has a `home`.
///
/// Words and phrases are looked up in the table of a language (`Language`) and become senses. A second table
/// says which senses a reply needs and which others it may stand beside. A word that neither table knows must
/// be a name in the home folder or the scan, or there is no answer. Of the languages, that one counts which
/// knows most words.
namespace orlen::AskReader {

/// Nothing for the suggested questions and for what the matcher is to answer.
[[nodiscard]] std::optional<Turn> turn(std::string_view question, const AskContext& context,
                                       const Conversation& before);

/// Whether an answer may speak of applications or of what starts at login, which takes time to read.
[[nodiscard]] bool needsPrograms(std::string_view question, const AskContext& context);

/// Whether an answer may list files or folders, or look up a name, which takes a walk of the home folder.
[[nodiscard]] bool needsHome(std::string_view question, const AskContext& context);

/// The conversation after an answer of the matcher.
[[nodiscard]] Conversation conversationAfter(std::string_view question, const AskContext& context,
                                             const Answer& answer, const Conversation& before);

} // namespace orlen::AskReader
