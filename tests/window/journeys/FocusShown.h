#pragma once

#include <QString>

class QQuickWindow;

/// Looks at what has the keyboard.
namespace orlen::FocusShown {

/// What a user would miss of the item that has the keyboard: a place inside what can be seen, a mark, a name
/// for a screen reader. Empty if nothing.
[[nodiscard]] QString fault(const QQuickWindow& window);

} // namespace orlen::FocusShown
