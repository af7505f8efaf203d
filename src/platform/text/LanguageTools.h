#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Natural-language processing of English words. Any thread; the dictionary and the word vectors are loaded
/// on first use.
namespace orlen::LanguageTools {

/// The words of a text in order, by Unicode's word boundaries (UAX 29); spaces and punctuation are not words.
/// Invalid UTF-8 separates words.
[[nodiscard]] std::vector<std::string> words(std::string_view text);

/// The base form of an English word ("leases" gives "lease"); nothing if the word is unknown or there is no
/// dictionary.
[[nodiscard]] std::optional<std::string> lemma(const std::string& word);

/// Lower case by Unicode's default rules, independent of the locale.
[[nodiscard]] std::string lowerCase(std::string_view text);

/// Inserts a space before each upper-case letter that follows a lower-case one: "myTaxReturn" gives "my Tax
/// Return", "PDFInvoice" stays. Other bytes are unchanged.
[[nodiscard]] std::string splitCamelCase(std::string_view text);

/// Whether the text contains a decimal digit of any script.
[[nodiscard]] bool hasDecimalDigit(std::string_view text);

/// Whether word vectors are installed. Reads them on first use.
[[nodiscard]] bool hasEmbedding();
/// Cosine distance of two English words in lower case (0: same direction, at most 2), where related words are
/// less than 0.62 apart. A word without a vector stands for its base form. Nothing if that has none either.
[[nodiscard]] std::optional<double> distance(std::string_view a, std::string_view b);

} // namespace orlen::LanguageTools
