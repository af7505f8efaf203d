#pragma once

#include <optional>
#include <string_view>

namespace orlen {

/// Goes line by line through text made of "[group]" headings and "key=value" entries, as desktop entries,
/// trash records, unit files and the settings of many programs are. Bytes are passed on as they are: quotes
/// and escapes differ between formats, and so does which of two entries for one key counts. The text must
/// outlive the reader and the lines it returned.
class KeyFile {
public:
    enum class Spaces {
        trimmed, ///< around lines, keys and values
        kept,    ///< part of the key or value; only a carriage return at the end of a line is dropped
    };

    struct Line {
        std::string_view raw;   ///< the whole line with its newline
        std::string_view group; ///< of the heading above, or of this one; empty before the first
        bool isHeading = false;
        std::string_view key; ///< empty unless the line is an entry
        std::string_view value;
    };

    explicit KeyFile(std::string_view text, Spaces spaces = Spaces::trimmed) : m_rest(text), m_spaces(spaces)
    {
    }

    /// Nothing at the end of the text. Comments ("#" or ";") and malformed lines have neither key nor
    /// heading.
    [[nodiscard]] std::optional<Line> next();

private:
    std::string_view m_rest;
    Spaces m_spaces;
    std::string_view m_group;
};

} // namespace orlen
