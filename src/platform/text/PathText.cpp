#include "platform/text/PathText.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <cstdint>

namespace orlen::PathText {

namespace {

std::string_view withoutTrailingSlashes(std::string_view path)
{
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    return path;
}

/// Position of the extension's dot in a name, or npos.
std::size_t extensionDot(std::string_view name)
{
    const std::size_t dot = name.rfind('.');
    return dot == 0 ? std::string_view::npos : dot;
}

/// The code point at `at`, which is advanced past it; negative if the bytes are not UTF-8.
std::int32_t nextCodePoint(std::string_view text, std::size_t& at)
{
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int64_t>(text.size());
    auto position = static_cast<std::int64_t>(at);
    UChar32 codePoint = 0;
    U8_NEXT(bytes, position, length, codePoint);
    at = static_cast<std::size_t>(position);
    return codePoint;
}

constexpr std::int32_t kJoiner = 0x200D;
constexpr std::int32_t kKeycap = 0x20E3;
constexpr std::int32_t kTextForm = 0xFE0E;
constexpr std::int32_t kPictureForm = 0xFE0F;

/// Whether the character is invisible or changes the direction of the text.
bool isUnsafeToShow(std::int32_t c)
{
    switch (u_charType(c)) {
    case U_CONTROL_CHAR:
    case U_LINE_SEPARATOR:
    case U_PARAGRAPH_SEPARATOR:
        return true;
    case U_FORMAT_CHAR: // except those drawn before the digits they mark
        return !u_hasBinaryProperty(c, UCHAR_PREPENDED_CONCATENATION_MARK);
    default:
        return u_hasBinaryProperty(c, UCHAR_DEFAULT_IGNORABLE_CODE_POINT) ||
               u_hasBinaryProperty(c, UCHAR_BIDI_CONTROL);
    }
}

bool isPicture(std::int32_t c)
{
    return u_hasBinaryProperty(c, UCHAR_EXTENDED_PICTOGRAPHIC);
}

/// Tracks which invisible characters of a text hold an emoji together.
class EmojiSequence {
public:
    /// Whether an invisible character may stay. Call it for each character in turn, with the next one;
    /// negative for none.
    bool holds(std::int32_t c, std::int32_t next)
    {
        const bool isVariation = c == kTextForm || c == kPictureForm;
        const bool varies = isVariation && !m_isVaried && (m_isPicture || next == kKeycap);
        const bool joins = c == kJoiner && m_isPicture && isPicture(next);
        const bool goesOn = m_isPicture && (varies || u_hasBinaryProperty(c, UCHAR_EMOJI_MODIFIER));
        m_isPicture = isPicture(c) || goesOn;
        m_isVaried = varies;
        return varies || joins;
    }

private:
    bool m_isPicture = false; ///< the text so far ends in a picture, perhaps with a variation
    bool m_isVaried = false;
};

} // namespace

std::string_view lastComponent(std::string_view path)
{
    path = withoutTrailingSlashes(path);
    if (path == "/")
        return {};
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view parent(std::string_view path)
{
    path = withoutTrailingSlashes(path);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos)
        return {};
    return slash == 0 ? path.substr(0, 1) : withoutTrailingSlashes(path.substr(0, slash));
}

std::string join(std::string_view folder, std::string_view name)
{
    std::string path;
    path.reserve(folder.size() + name.size() + 1);
    path.append(folder);
    if (path.empty() || path.back() != '/')
        path.push_back('/');
    path.append(name);
    return path;
}

std::string_view extension(std::string_view path)
{
    const std::string_view name = lastComponent(path);
    const std::size_t dot = extensionDot(name);
    return dot == std::string_view::npos ? std::string_view{} : name.substr(dot + 1);
}

std::string_view stem(std::string_view path)
{
    const std::string_view name = lastComponent(path);
    return name.substr(0, extensionDot(name));
}

std::vector<std::string_view> components(std::string_view path)
{
    std::vector<std::string_view> parts;
    while (!path.empty()) {
        const std::size_t slash = path.find('/');
        if (slash != 0)
            parts.push_back(path.substr(0, slash));
        if (slash == std::string_view::npos)
            break;
        path.remove_prefix(slash + 1);
    }
    return parts;
}

std::string standardized(std::string_view path)
{
    std::vector<std::string_view> kept;
    for (const std::string_view part : components(path)) {
        if (part == ".")
            continue;
        if (part != "..")
            kept.push_back(part);
        else if (!kept.empty())
            kept.pop_back();
    }
    const bool isAbsolute = !path.empty() && path.front() == '/';
    std::string text;
    text.reserve(path.size());
    for (const std::string_view part : kept) {
        if (isAbsolute || !text.empty())
            text.push_back('/');
        text.append(part);
    }
    if (isAbsolute && text.empty())
        text.push_back('/');
    return text;
}

bool isAtOrBelow(std::string_view path, std::string_view folder)
{
    if (!path.starts_with(folder))
        return false;
    return path.size() == folder.size() || path[folder.size()] == '/' || folder == "/";
}

std::string asciiLower(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

bool isValidUtf8(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        if (nextCodePoint(text, at) < 0)
            return false;
    }
    return true;
}

std::string forDisplay(std::string_view path)
{
    std::string shown;
    shown.reserve(path.size());
    EmojiSequence emoji;
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t start = at;
        const std::int32_t codePoint = nextCodePoint(path, at);
        std::size_t ahead = at;
        const bool isHeld = emoji.holds(codePoint, at < path.size() ? nextCodePoint(path, ahead) : -1);
        if (codePoint < 0)
            shown.append("\xEF\xBF\xBD");
        else if (isUnsafeToShow(codePoint) && !isHeld)
            shown.push_back('?');
        else
            shown.append(path.substr(start, at - start));
    }
    return shown;
}

} // namespace orlen::PathText
