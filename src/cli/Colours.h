#pragma once

#include "platform/process/Terminal.h"

#include <string>
#include <string_view>

namespace orlen {

enum class Style { plain, bold, dim, green, orange, blue };

/// Emphasis on a terminal; none elsewhere.
class Colours {
public:
    /// For a stream: only on a terminal that can show colours, and never when NO_COLOR is set.
    explicit Colours(Terminal::Stream stream);

    [[nodiscard]] std::string styled(Style style, std::string_view text) const;

private:
    bool m_isOn;
};

} // namespace orlen
