#pragma once

#include "insight/reader/AskedName.h"
#include "insight/reader/PlaceReplies.h"
#include "insight/reader/Question.h"

#include <optional>
#include <string_view>
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

/// Written neither like a path nor like a file.
[[nodiscard]] bool isPlainName(std::string_view name);

/// Whether it has, or had, folders in the home folder.
[[nodiscard]] bool isProgram(const AskContext& context, const ProgramName& program);

/// "The Discord cache": the part of a program that the question names. Nothing if it names none.
[[nodiscard]] std::optional<Answer> aboutPart(const Question& question, const AskContext& context,
                                              const AskedName& asked);

} // namespace orlen::AskReader
