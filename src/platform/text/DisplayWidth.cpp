#include "platform/text/DisplayWidth.h"

#include <cstdint>
#include <unicode/uchar.h>
#include <unicode/utf8.h>
#include <vector>

namespace orlen::DisplayWidth {

namespace {

constexpr std::string_view kEllipsis = "…";

int columnsOf(UChar32 character)
{
    switch (u_charType(character)) {
    case U_NON_SPACING_MARK:
    case U_ENCLOSING_MARK:
    case U_FORMAT_CHAR:
        return 0;
    default:
        break;
    }
    const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

/// A character and where it starts.
struct Piece {
    std::size_t start;
    int columns;
};

std::vector<Piece> pieces(std::string_view text)
{
    std::vector<Piece> all;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    for (std::int32_t at = 0; at < length;) {
        const auto start = static_cast<std::size_t>(at);
        UChar32 character = 0;
        U8_NEXT_OR_FFFD(bytes, at, length, character);
        all.push_back({start, columnsOf(character)});
    }
    return all;
}

/// The longest prefix of at most `limit` columns.
std::string_view head(std::string_view text, int limit)
{
    for (const Piece& piece : pieces(text)) {
        limit -= piece.columns;
        if (limit < 0)
            return text.substr(0, piece.start);
    }
    return text;
}

/// The longest suffix of at most `limit` columns.
std::string_view tail(std::string_view text, int limit)
{
    const std::vector<Piece> all = pieces(text);
    std::size_t start = text.size();
    for (auto piece = all.rbegin(); piece != all.rend() && piece->columns <= limit; ++piece) {
        limit -= piece->columns;
        start = piece->start;
    }
    return text.substr(start);
}

} // namespace

int columns(std::string_view text)
{
    int sum = 0;
    for (const Piece& piece : pieces(text))
        sum += piece.columns;
    return sum;
}

std::string elidedEnd(std::string_view text, int limit)
{
    if (columns(text) <= limit)
        return std::string(text);
    return limit < 1 ? std::string() : std::string(head(text, limit - 1)).append(kEllipsis);
}

std::string elidedMiddle(std::string_view text, int limit)
{
    if (columns(text) <= limit)
        return std::string(text);
    if (limit < 1)
        return {};
    const int front = (limit - 1) / 3;
    return std::string(head(text, front)).append(kEllipsis).append(tail(text, limit - 1 - front));
}

} // namespace orlen::DisplayWidth
