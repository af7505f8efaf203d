#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// English words as directions in space: words of related meaning point the same way. Any thread.
///
/// The table, little-endian: "OVEC", then 32-bit numbers: version (1), words, numbers per word, bytes of
/// text; the 32-bit float that a cosine's distance from 1 is multiplied by; the words in lower case, sorted
/// by their bytes, each followed by a line feed; then the vector of each word, one signed byte per number.
/// The file ends with the SHA-256 digest of all that.
class WordVectors {
public:
    /// Reads the file, at most `kLongestFile` bytes. Nothing if it is missing or damaged. Blocks on the disk.
    [[nodiscard]] static std::optional<WordVectors> load(const std::string& path);

    /// Takes a table without its digest. Nothing if it is truncated, has trailing bytes, or its words are not
    /// in order.
    [[nodiscard]] static std::optional<WordVectors> read(std::string table);

    [[nodiscard]] std::size_t size() const { return m_words.size(); } ///< number of words
    [[nodiscard]] bool contains(std::string_view word) const;

    /// From 0 (same direction) to 2; nothing if either word is unknown. Words are compared as they are.
    [[nodiscard]] std::optional<double> distance(std::string_view a, std::string_view b) const;

    static constexpr std::size_t kLongestFile = 4'000'000; ///< bytes

private:
    struct Word {
        std::uint32_t start = 0; ///< in the table
        std::uint32_t length = 0;
    };

    [[nodiscard]] std::string_view text(Word word) const;
    /// Empty if the word is unknown.
    [[nodiscard]] std::span<const char> vectorOf(std::string_view word) const;
    [[nodiscard]] bool indexWords(std::size_t start, std::size_t end, std::size_t words);

    std::string m_table;
    std::vector<Word> m_words; ///< sorted
    std::size_t m_vectors = 0; ///< where they start in the table
    std::size_t m_numbers = 0; ///< per word
    double m_scale = 0;
};

} // namespace orlen
