#include "platform/values/Uuid.h"

#include <algorithm>
#include <random>

namespace orlen {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

constexpr bool hasHyphenBefore(std::size_t byte)
{
    return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

std::optional<unsigned> hexValue(char c)
{
    if (c >= 'a' && c <= 'f')
        c = static_cast<char>(c - 'a' + 'A');
    const std::size_t at = kDigits.find(c);
    if (at == std::string_view::npos)
        return std::nullopt;
    return static_cast<unsigned>(at);
}

} // namespace

Uuid Uuid::random()
{
    std::random_device source;
    Uuid id;
    std::generate(id.bytes.begin(), id.bytes.end(), [&] { return static_cast<std::uint8_t>(source()); });
    id.bytes[6] = static_cast<std::uint8_t>((id.bytes[6] & 0x0FU) | 0x40U); // version 4
    id.bytes[8] = static_cast<std::uint8_t>((id.bytes[8] & 0x3FU) | 0x80U); // the variant of RFC 4122
    return id;
}

std::optional<Uuid> Uuid::parse(std::string_view text)
{
    if (text.size() != 36)
        return std::nullopt;
    Uuid id;
    std::size_t at = 0;
    for (std::size_t i = 0; i < id.bytes.size(); ++i) {
        if (hasHyphenBefore(i) && text[at++] != '-')
            return std::nullopt;
        const auto high = hexValue(text[at]);
        const auto low = hexValue(text[at + 1]);
        if (!high || !low)
            return std::nullopt;
        id.bytes[i] = static_cast<std::uint8_t>(*high * 16 + *low);
        at += 2;
    }
    return id;
}

std::string Uuid::text() const
{
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (hasHyphenBefore(i))
            text.push_back('-');
        text.push_back(kDigits[bytes[i] >> 4U]);
        text.push_back(kDigits[bytes[i] & 0x0FU]);
    }
    return text;
}

} // namespace orlen
