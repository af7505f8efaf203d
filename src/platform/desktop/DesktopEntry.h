#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The group [Desktop Entry] of a desktop entry file (freedesktop.org): launchers and autostart entries.
/// Untrusted input. The first line for a key counts. A plain value.
class DesktopEntry {
public:
    /// Longer files are not read; bytes.
    static constexpr std::size_t kSizeLimit = 256UL * 1024;
    /// The group that holds the entry.
    static constexpr std::string_view kGroup = "Desktop Entry";

    /// Nothing if the text has no such group.
    [[nodiscard]] static std::optional<DesktopEntry> parsed(std::string_view text);
    /// Nothing if the file is missing, too long, not a regular file, or has no such group. Blocks on the
    /// disk; any thread.
    [[nodiscard]] static std::optional<DesktopEntry> read(const std::string& path);

    /// The value with its escapes resolved; empty if it is absent or not UTF-8.
    [[nodiscard]] std::string text(std::string_view key) const;
    /// The value in the first of these languages (tags such as "de_AT") that the entry has, else the plain
    /// one.
    [[nodiscard]] std::string localizedText(std::string_view key,
                                            std::span<const std::string> languages) const;
    /// Nothing unless the value is "true" or "false".
    [[nodiscard]] std::optional<bool> flag(std::string_view key) const;
    /// The values between semicolons.
    [[nodiscard]] std::vector<std::string> list(std::string_view key) const;
    /// The words of a command line (`Exec`) without quotes and escapes. A leading "env" with its assignments
    /// is dropped, so the first word is the program. Empty if a quote is unclosed.
    [[nodiscard]] std::vector<std::string> command(std::string_view key) const;
    [[nodiscard]] bool has(std::string_view key) const;

private:
    std::map<std::string, std::string, std::less<>> m_values; ///< raw, as in the file
};

} // namespace orlen
