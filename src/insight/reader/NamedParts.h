#pragma once

#include "insight/reader/PlaceReplies.h"
#include "insight/reader/Question.h"

#include <optional>
#include <vector>

/// The part of a program that is meant, where a question names several. Pure; any thread.
namespace orlen::AskReader {

/// "The caches of Firefox and Spotify", "the Firefox and Spotify caches": the word for the part counts for
/// all programs that are named.
void sharePart(const Question& question, std::vector<std::vector<Phrase>>& groups);

/// "The mint and debian ISOs": so does the word for a kind, where files of the kind have these names.
void shareKind(const Question& question, const AskContext& context, std::vector<std::vector<Phrase>>& groups);

/// The program of which a group names the caches or log files; nothing if it names none.
[[nodiscard]] std::optional<ProgramName> partOf(const Question& group);

} // namespace orlen::AskReader
