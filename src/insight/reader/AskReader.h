#pragma once

#include "insight/AskEngine.h"

#include <optional>
#include <string_view>

/// Reads a question word by word and answers only if it understands all of it; everything else is left to the
/// matcher. Pure, deterministic; any thread.
///
/// Words and phrases are looked up in a table (`Lexicon`, `Subjects`) and become senses. A second table says
/// which senses a reply needs and which others it may stand beside. A word that neither table knows must be
/// a name in the scan, or there is no answer.
namespace orlen::AskReader {

/// Nothing for the suggested questions and for what the matcher is to answer.
[[nodiscard]] std::optional<Answer> answer(std::string_view question, const AskContext& context);

} // namespace orlen::AskReader
