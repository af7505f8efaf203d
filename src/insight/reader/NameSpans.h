#pragma once

#include "insight/AskContext.h"
#include "insight/reader/Words.h"

#include <vector>

namespace orlen::AskReader {

/// The words with each name that consists of several of them as one quoted word: "can I delete Summer of
/// 69.mp3". Only what is the whole name of something in the scan, or of an application, and holds a word that
/// no language knows or the ending of a file. Pure; any thread.
[[nodiscard]] std::vector<Word> withNames(std::vector<Word> words, const AskContext& context);

} // namespace orlen::AskReader
