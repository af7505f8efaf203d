#include "insight/reader/LowerName.h"

#include "platform/text/LanguageTools.h"

namespace orlen::AskReader {

void lowerInto(std::string& lower, std::string_view text)
{
    // Most names are ASCII and need no library.
    lower.assign(text);
    unsigned char all = 0;
    for (char& c : lower) {
        all |= static_cast<unsigned char>(c);
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    if (all >= 0x80)
        lower = LanguageTools::lowerCase(text);
}

std::string lowered(std::string_view text)
{
    std::string lower;
    lowerInto(lower, text);
    return lower;
}

std::vector<std::string> wordsOfName(std::string_view lower)
{
    std::vector<std::string> words;
    anyWord(lower, [&](std::string_view word) {
        words.emplace_back(word);
        return false;
    });
    return words;
}

bool holdsWord(std::string_view lower, std::string_view word)
{
    return lower.find(word) != std::string_view::npos &&
           anyWord(lower, [&](std::string_view each) { return each == word; });
}

} // namespace orlen::AskReader
