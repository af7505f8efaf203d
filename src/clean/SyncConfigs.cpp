#include "clean/SyncConfigs.h"

#include "platform/text/LineText.h"

#include <nlohmann/json.hpp>
#include <pugixml.hpp>

#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>

namespace orlen::SyncConfigs {

namespace {

/// Calls `visit(key, value)` for each line of the form key = value.
template <typename Visit>
void forEachSetting(std::string_view text, Visit&& visit)
{
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        const std::size_t equals = line.find('=');
        if (equals != std::string_view::npos)
            visit(LineText::trimmed(line.substr(0, equals)), LineText::trimmed(line.substr(equals + 1)));
    }
}

std::string_view withoutQuotes(std::string_view value)
{
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        return value.substr(1, value.size() - 2);
    return value;
}

void appendUtf8(std::string& text, std::uint32_t codePoint)
{
    const auto put = [&](std::uint32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | (codePoint >> 6U));
        put(0x80 | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        put(0xE0 | (codePoint >> 12U));
        put(0x80 | ((codePoint >> 6U) & 0x3FU));
        put(0x80 | (codePoint & 0x3FU));
    } else {
        put(0xF0 | (codePoint >> 18U));
        put(0x80 | ((codePoint >> 12U) & 0x3FU));
        put(0x80 | ((codePoint >> 6U) & 0x3FU));
        put(0x80 | (codePoint & 0x3FU));
    }
}

/// The UTF-16 unit of an escape "\x" at the start of `text`, which is moved behind it; nothing when there is
/// none.
std::optional<std::uint32_t> takeUnit(std::string_view& text)
{
    std::uint32_t unit = 0;
    if (!text.starts_with("\\x"))
        return std::nullopt;
    const auto [end, error] = std::from_chars(text.data() + 2, text.data() + text.size(), unit, 16);
    if (error != std::errc() || unit > 0xFFFF)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return unit;
}

/// The character that begins with a unit already taken off the text: one unit, or two halves. A half without
/// its other one becomes U+FFFD.
std::uint32_t completed(std::uint32_t unit, std::string_view& text)
{
    constexpr std::uint32_t kReplacement = 0xFFFD;
    if (unit < 0xD800 || unit > 0xDFFF)
        return unit;
    std::string_view behind = text;
    const auto low = takeUnit(behind);
    if (unit > 0xDBFF || !low || *low < 0xDC00 || *low > 0xDFFF)
        return kReplacement;
    text = behind;
    return 0x10000 + ((unit - 0xD800) << 10U) + (*low - 0xDC00);
}

/// Older versions of the toolkit write every letter beyond ASCII as the hexadecimal escape of its UTF-16
/// units.
std::string unescaped(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        if (const auto unit = takeUnit(text)) {
            appendUtf8(plain, completed(*unit, text));
            continue;
        }
        if (text.front() == '\\' && text.size() > 1)
            text.remove_prefix(1);
        plain.push_back(text.front());
        text.remove_prefix(1);
    }
    return plain;
}

/// The reader of the text would otherwise keep a million levels of a hostile file in memory.
bool isShallow(int depth, nlohmann::json::parse_event_t /*event*/, const nlohmann::json& /*value*/)
{
    constexpr int kDeepest = 8;
    return depth <= kDeepest;
}

} // namespace

std::vector<std::string> fromDropbox(std::string_view text)
{
    std::vector<std::string> folders;
    const auto accounts = nlohmann::json::parse(text, isShallow, false);
    if (!accounts.is_object())
        return folders;
    for (const auto& account : accounts) {
        if (!account.is_object())
            continue;
        const auto path = account.find("path");
        if (path == account.end())
            continue;
        if (const auto* folder = path->get_ptr<const std::string*>())
            folders.push_back(*folder);
    }
    return folders;
}

std::vector<std::string> fromNextcloud(std::string_view text)
{
    std::vector<std::string> folders;
    forEachSetting(text, [&](std::string_view key, std::string_view value) {
        // Keys are numbered paths: 0\Folders\1\localPath.
        if (key.substr(key.rfind('\\') + 1) == "localPath")
            folders.push_back(unescaped(withoutQuotes(value)));
    });
    return folders;
}

std::vector<std::string> fromSyncthing(std::string_view text)
{
    std::vector<std::string> folders;
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size()))
        return folders;
    for (const pugi::xml_node folder : document.child("configuration").children("folder"))
        folders.emplace_back(folder.attribute("path").value());
    return folders;
}

std::vector<std::string> fromOneDrive(std::string_view text)
{
    std::vector<std::string> folders;
    forEachSetting(text, [&](std::string_view key, std::string_view value) {
        if (key == "sync_dir")
            folders.emplace_back(withoutQuotes(value));
    });
    return folders;
}

} // namespace orlen::SyncConfigs
