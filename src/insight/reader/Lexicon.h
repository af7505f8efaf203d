#pragma once

#include "insight/reader/Sense.h"
#include "insight/reader/Subjects.h"

#include <cstddef>
#include <string>
#include <string_view>

/// The words and phrases that the reader knows. Any thread.
namespace orlen::AskReader::Lexicon {

struct Entry {
    Sense sense = Sense::unknown;
    const Subject* subject = nullptr; ///< for `Sense::subject`
};

/// Words in the longest phrase.
inline constexpr std::size_t kLongestPhrase = 5;

/// The meaning of a phrase in lower case, words separated by one space; null if unknown.
[[nodiscard]] const Entry* find(const std::string& phrase);

/// The meaning of the known word that one typing error separates from this one. Only for words of five
/// letters or more; null if there is none, or if several mean different things.
[[nodiscard]] const Entry* findMistyped(std::string_view word);

/// Whether one letter too many, too few, wrong or swapped with its neighbour separates the words.
[[nodiscard]] bool isOneLetterApart(std::string_view a, std::string_view b);

} // namespace orlen::AskReader::Lexicon
