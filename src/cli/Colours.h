#pragma once

#include "platform/process/Terminal.h"

#include <string>
#include <string_view>

namespace orlen {

enum class Style { plain, bold, dim, green, orange, blue };

/// Emphasis on a terminal, plain text elsewhere.
class Colours {
public:
    /// Colours are used only if the stream is a terminal that supports them and NO_COLOR is not set.
    explicit Colours(Terminal::Stream stream);

    [[nodiscard]] std::string styled(Style style, std::string_view text) const;

private:
    bool m_isOn;
};

} // namespace orlen
