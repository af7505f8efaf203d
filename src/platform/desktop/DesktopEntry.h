#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The group [Desktop Entry] of a desktop entry file, as the freedesktop rules describe it: launchers of
/// applications and autostart entries. Untrusted input: lines that are no entry are passed over, of a key
/// that stands twice the first counts. A plain value.
class DesktopEntry {
public:
    /// Longest file that is read, in bytes.
    static constexpr std::size_t kSizeLimit = 256UL * 1024;
    /// The group that holds the entry.
    static constexpr std::string_view kGroup = "Desktop Entry";

    /// Nothing when the text has no such group.
    [[nodiscard]] static std::optional<DesktopEntry> parsed(std::string_view text);
    /// Nothing when the file is missing, too long, no regular file, or has no such group. Blocks on the disk;
    /// any thread.
    [[nodiscard]] static std::optional<DesktopEntry> read(const std::string& path);

    /// The value behind the key with its escapes resolved; empty when it is absent or not UTF-8.
    [[nodiscard]] std::string text(std::string_view key) const;
    /// The value in the first of the languages (tags such as "de_AT") that the entry has, else the plain one.
    [[nodiscard]] std::string localizedText(std::string_view key,
                                            std::span<const std::string> languages) const;
    /// Nothing when the value is neither "true" nor "false".
    [[nodiscard]] std::optional<bool> flag(std::string_view key) const;
    /// Values between semicolons.
    [[nodiscard]] std::vector<std::string> list(std::string_view key) const;
    /// The words of a command line (`Exec`), quotes and escapes removed; "env" and the assignments behind it
    /// are left out, so that the first word is the program. Empty when a quote is left open.
    [[nodiscard]] std::vector<std::string> command(std::string_view key) const;
    [[nodiscard]] bool has(std::string_view key) const;

private:
    std::map<std::string, std::string, std::less<>> m_values; ///< as they stand in the file
};

} // namespace orlen
