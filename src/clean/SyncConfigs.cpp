#include "clean/SyncConfigs.h"

#include "platform/text/KeyFile.h"

#include <nlohmann/json.hpp>
#include <pugixml.hpp>
#include <unicode/unistr.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

namespace orlen::SyncConfigs {

namespace {

std::string_view withoutQuotes(std::string_view value)
{
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        return value.substr(1, value.size() - 2);
    return value;
}

/// Removes an escape "\x" and its hexadecimal digits from the start of the text and returns the UTF-16 unit;
/// nothing if there is none.
std::optional<char16_t> takeUnit(std::string_view& text)
{
    std::uint16_t unit = 0;
    if (!text.starts_with("\\x"))
        return std::nullopt;
    const auto [end, error] = std::from_chars(text.data() + 2, text.data() + text.size(), unit, 16);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return unit;
}

/// Older versions of the toolkit escape all non-ASCII characters as hexadecimal UTF-16 units. An unpaired
/// surrogate becomes U+FFFD.
std::string unescaped(std::string_view text)
{
    std::string plain;
    while (!text.empty()) {
        icu::UnicodeString units;
        while (const auto unit = takeUnit(text))
            units.append(*unit);
        units.toUTF8String(plain);
        if (text.starts_with('\\') && text.size() > 1)
            text.remove_prefix(1);
        plain.append(text.substr(0, 1));
        text.remove_prefix(std::min<std::size_t>(text.size(), 1));
    }
    return plain;
}

/// The parser would otherwise keep a million levels of a hostile file in memory.
bool isShallow(int depth, nlohmann::json::parse_event_t /*event*/, const nlohmann::json& /*value*/)
{
    constexpr int kDeepest = 8;
    return depth <= kDeepest;
}

/// The values of a key in whichever group, without quotes.
std::vector<std::string> valuesOf(std::string_view key, std::string_view text)
{
    std::vector<std::string> values;
    KeyFile file(text);
    while (const auto line = file.next()) {
        if (line->key == key)
            values.emplace_back(withoutQuotes(line->value));
    }
    return values;
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
    KeyFile file(text);
    while (const auto line = file.next()) {
        // Keys are numbered paths: 0\Folders\1\localPath.
        if (line->key.substr(line->key.rfind('\\') + 1) == "localPath")
            folders.push_back(unescaped(withoutQuotes(line->value)));
    }
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

std::vector<std::string> fromMaestral(std::string_view text)
{
    return valuesOf("path", text);
}

std::vector<std::string> fromOneDrive(std::string_view text)
{
    return valuesOf("sync_dir", text);
}

} // namespace orlen::SyncConfigs
