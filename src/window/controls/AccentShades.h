#pragma once

#include <QColor>

namespace orlen {

/// The shades of an accent colour that the window draws with. Each keeps a contrast of 4.5 to what is written
/// on it, or to what it is written on.
struct AccentShades {
    QColor text;    ///< of text, icons and focus rings, on any of the window's surfaces
    QColor fill;    ///< under white text
    QColor hover;   ///< the fill under the pointer
    QColor pressed; ///< the fill while pressed
    QColor soft;    ///< under the text shade
};

[[nodiscard]] AccentShades accentShades(const QColor& colour, bool isDark);

/// The contrast ratio of two opaque colours, from 1 to 21 (Web Content Accessibility Guidelines 2.1).
[[nodiscard]] double contrastOf(const QColor& one, const QColor& other);

} // namespace orlen
