#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Question.h"

#include <string>
#include <string_view>

/// Words for places that no scan lists because rules protect them. Pure; any thread.
namespace orlen::AskReader {

/// Whether a phrase is one of those in the list, which are separated by commas.
[[nodiscard]] bool isListed(std::string_view phrases, std::string_view phrase);

/// Whether it is a word for such a place: "bookmarks".
[[nodiscard]] bool isKnownPlace(const std::string& name);

/// Whether such a word is the name of a program.
[[nodiscard]] bool isProgramOfPlace(const std::string& name);

/// Whether what is protected so is nobody's business: keys, passwords, mail and the like.
[[nodiscard]] bool holdsSecrets(Protection protection);

/// The path of something protected that the question means; empty if none, or if a place that it has other
/// words for is not there.
[[nodiscard]] std::string protectedPath(const Question& question, const AskContext& context,
                                        const std::string& name);

} // namespace orlen::AskReader
