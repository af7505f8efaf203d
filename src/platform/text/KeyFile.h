#pragma once

#include <optional>
#include <string_view>

namespace orlen {

/// Reads text made of "[group]" headings and "key=value" entries, line by line: desktop entries, trash
/// records, unit files and the settings of many programs. Bytes are returned as they are: formats differ in
/// quoting, escapes, and which of two entries for a key counts. The text must outlive the reader and its
/// lines.
class KeyFile {
public:
    enum class Spaces {
        trimmed, ///< around lines, keys and values
        kept,    ///< part of the key or value; only a trailing carriage return is dropped
    };

    struct Line {
        std::string_view raw;   ///< the whole line with its newline
        std::string_view group; ///< the heading above, or this one; empty before the first
        bool isHeading = false;
        std::string_view key; ///< empty unless this is an entry
        std::string_view value;
    };

    explicit KeyFile(std::string_view text, Spaces spaces = Spaces::trimmed) : m_rest(text), m_spaces(spaces)
    {
    }

    /// Nothing at the end. Comments ("#" or ";") and malformed lines are returned without a key.
    [[nodiscard]] std::optional<Line> next();

private:
    std::string_view m_rest;
    Spaces m_spaces;
    std::string_view m_group;
};

} // namespace orlen
