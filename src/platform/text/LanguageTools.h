#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What natural-language libraries tell of English words. Any thread; the dictionary is loaded on first use.
namespace orlen::LanguageTools {

/// The words of a text in order, by Unicode's word-boundary rules (UAX 29), as they stand in it; spaces and
/// punctuation are no words. Bytes that are not UTF-8 separate words.
[[nodiscard]] std::vector<std::string> words(std::string_view text);

/// The base form of an English word ("leases" gives "lease"); nothing when the word or the dictionary is
/// unknown.
[[nodiscard]] std::optional<std::string> lemma(const std::string& word);

/// Lower case by Unicode's default rules, independent of the locale.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// The text with a space before each upper-case letter that follows a lower-case one, by Unicode's character
/// properties: "myTaxReturn" gives "my Tax Return", "PDFInvoice" stays. Other bytes are kept as they are.
[[nodiscard]] std::string splitCamelCase(std::string_view text);

/// Whether a character of the text is a decimal digit of any script.
[[nodiscard]] bool hasDecimalDigit(std::string_view text);

/// Whether word vectors are there. They are not yet: `distance` then never has a value.
[[nodiscard]] bool hasEmbedding();
/// Cosine distance of two English words (0: same direction, 2: opposite); nothing without vectors or for an
/// unknown word.
[[nodiscard]] std::optional<double> distance(std::string_view a, std::string_view b);

} // namespace orlen::LanguageTools
