#include "platform/files/UserDirs.h"

#include "platform/text/KeyFile.h"
#include "platform/text/PathText.h"

#include <optional>

namespace orlen::UserDirs {

namespace {

/// The text between the quotes without backslashes, as a shell would read it.
std::optional<std::string> unquoted(std::string_view text)
{
    if (text.empty() || text.front() != '"')
        return std::nullopt;
    std::string value;
    for (std::size_t at = 1; at < text.size(); ++at) {
        if (text[at] == '"')
            return value;
        if (text[at] == '\\' && at + 1 < text.size())
            ++at;
        value.push_back(text[at]);
    }
    return std::nullopt;
}

std::optional<std::string> folderOf(std::string_view quoted, std::string_view home)
{
    const auto value = unquoted(quoted);
    // The system would stop at a NUL, perhaps at the home folder itself.
    if (!value || value->find('\0') != std::string::npos)
        return std::nullopt;
    constexpr std::string_view kHome = "$HOME";
    std::string path = *value;
    if (path.starts_with(kHome))
        path = std::string(home) + path.substr(kHome.size());
    if (path.empty() || path.front() != '/')
        return std::nullopt;
    path = PathText::standardized(path);
    if (path == home || !PathText::isAtOrBelow(path, home))
        return std::nullopt;
    return path;
}

} // namespace

std::map<std::string, std::string> parse(std::string_view text, std::string_view home)
{
    constexpr std::string_view kStart = "XDG_";
    constexpr std::string_view kEnd = "_DIR";
    std::map<std::string, std::string> folders;
    KeyFile file(text);
    while (const auto line = file.next()) {
        const std::string_view key = line->key;
        if (!key.starts_with(kStart) || !key.ends_with(kEnd) || key.size() <= kStart.size() + kEnd.size())
            continue;
        const std::string name(key.substr(kStart.size(), key.size() - kStart.size() - kEnd.size()));
        folders.erase(name);
        if (auto folder = folderOf(line->value, home))
            folders[name] = std::move(*folder);
    }
    return folders;
}

} // namespace orlen::UserDirs
