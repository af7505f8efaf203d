#pragma once

#include "insight/reader/Lexicon.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The words of a question. Pure; any thread.
namespace orlen::AskReader {

struct Word {
    std::string typed;       ///< without punctuation around it
    std::string plain;       ///< as words are compared
    bool isQuoted = false;   ///< all that stood in a pair of quotation marks
    bool endsClause = false; ///< a comma, a full stop or their like follows
};

/// Valid UTF-8 only.
[[nodiscard]] std::vector<Word> wordsOf(std::string_view question);

/// The words as a language takes them: its short forms ("l'espace") and known words joined by a hyphen
/// ("puis-je") apart.
[[nodiscard]] std::vector<Word> wordsIn(const Lexicon& lexicon, const std::vector<Word>& words);

/// The two known words that make up this one, in a language that joins them; nothing if it is none.
[[nodiscard]] std::optional<std::pair<std::string, std::string>> compound(const Lexicon& lexicon,
                                                                          const std::string& word);

} // namespace orlen::AskReader
