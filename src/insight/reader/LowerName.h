#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names in lower case and the words in them, as they are compared. Pure; any thread.
namespace orlen::AskReader {

/// Writes the text in lower case to `lower`, whose memory is used again.
void lowerInto(std::string& lower, std::string_view text);
[[nodiscard]] std::string lowered(std::string_view text);

/// Whether a byte of a text in lower case belongs to a word: a letter or a digit.
[[nodiscard]] constexpr bool isWordByte(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80;
}

/// Calls `visit` with each word of a text in lower case until it returns true; whether it did.
template <typename Visit>
bool anyWord(std::string_view text, Visit visit)
{
    for (std::size_t at = 0; at < text.size();) {
        if (!isWordByte(text[at])) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        while (at < text.size() && isWordByte(text[at]))
            ++at;
        if (visit(text.substr(start, at - start)))
            return true;
    }
    return false;
}

[[nodiscard]] std::vector<std::string> wordsOfName(std::string_view lower);
/// Whether the word is one of those in the text.
[[nodiscard]] bool holdsWord(std::string_view lower, std::string_view word);

} // namespace orlen::AskReader
