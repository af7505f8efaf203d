#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Question.h"

#include <string>
#include <string_view>

/// Words for places that no scan lists because rules protect them. Pure; any thread.
namespace orlen::AskReader {

/// Whether a phrase is one of those in the list, which are separated by commas.
[[nodiscard]] bool isListed(std::string_view phrases, std::string_view phrase);

/// The path of something protected that the question means; empty if none.
[[nodiscard]] std::string protectedPath(const Question& question, const AskContext& context,
                                        const std::string& name);

} // namespace orlen::AskReader
