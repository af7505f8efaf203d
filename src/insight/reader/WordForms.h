#pragma once

#include "insight/reader/Lexicon.h"
#include "insight/reader/Question.h"

#include <string>
#include <string_view>

/// Forms and errors of single words, all in plain letters. Pure but for the word lists, which are read on
/// first use; any thread.
namespace orlen::AskReader {

/// An English word of the dictionary, or a name of the scan: no typing error.
[[nodiscard]] bool isRightAsItStands(const Lexicon& lexicon, std::string_view word, const IsName& isName);

/// "hwo": the one known word with two neighbouring letters the other way round; the word itself if it is
/// right, or if there is not exactly one.
[[nodiscard]] std::string unswapped(const Lexicon& lexicon, const std::string& word, const IsName& isName);

/// "offten": the one word of known phrases that a letter separates from it; the word itself if it is right,
/// or if there is not exactly one.
[[nodiscard]] std::string respelt(const Lexicon& lexicon, const std::string& word, const IsName& isName);

/// What an English form says that no row lists: "needed". Null if it is none, and for other languages.
[[nodiscard]] const Lexicon::Entry* inflectedWord(const Lexicon& lexicon, std::string_view word);

/// What the verb says that is written with its pronoun: "tirarlas", "levarli". Null if it is none.
[[nodiscard]] const Lexicon::Entry* wordBeforeClitic(const Lexicon& lexicon, const std::string& word);

/// Adverbs of manner never decide anything.
[[nodiscard]] bool isAdverb(std::string_view word);

} // namespace orlen::AskReader
