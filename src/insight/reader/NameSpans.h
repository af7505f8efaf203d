#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Words.h"

#include <string_view>
#include <vector>

namespace orlen::AskReader {

/// The words of a question, with each name in it as one quoted word: "can I delete Summer of 69.mp3". A name
/// is the whole name of something in the home folder or of an application, or a path that leads to something
/// in the home folder, which becomes one that begins with "~/". Words that could be a name but are known in a
/// language stay as they are. Valid UTF-8 only. Pure; any thread.
[[nodiscard]] std::vector<Word> withNames(std::string_view text, const AskContext& context);

} // namespace orlen::AskReader
