#include "platform/text/PercentCoding.h"

#include <charconv>

namespace orlen::PercentCoding {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

bool isPlain(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~' || c == '/';
}

/// The byte written as the two digits at `at`.
std::optional<char> byteAt(std::string_view text, std::size_t at)
{
    if (at + 2 > text.size())
        return std::nullopt;
    unsigned value = 0;
    const char* end = text.data() + at + 2;
    const auto [stop, error] = std::from_chars(text.data() + at, end, value, 16);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return static_cast<char>(value);
}

} // namespace

std::string encoded(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (isPlain(c))
            text.push_back(c);
        else
            text.append({'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]});
    }
    return text;
}

std::optional<std::string> decoded(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            bytes.push_back(text[at]);
            continue;
        }
        const auto byte = byteAt(text, at + 1);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
        at += 2;
    }
    return bytes;
}

} // namespace orlen::PercentCoding
