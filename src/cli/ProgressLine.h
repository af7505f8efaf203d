#pragma once

#include <string_view>

namespace orlen {

/// One live line on standard error if that is a terminal, nothing otherwise. Erased at the end.
class ProgressLine {
public:
    ProgressLine();
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    /// Whether standard error is a terminal.
    [[nodiscard]] bool isShown() const { return m_isShown; }
    /// Replaces the line with displayable text, cut to the terminal's width.
    void show(std::string_view text);
    void erase();

private:
    const bool m_isShown;
    bool m_isDirty = false;
};

} // namespace orlen
