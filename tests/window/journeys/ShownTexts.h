#pragma once

#include <QStringList>

class QQuickItem;

/// Looks through the texts of a window that speaks the language of scripts/test-catalogue, where each text
/// that was looked up comes in brackets.
namespace orlen::ShownTexts {

/// The texts with words that were not looked up: outside brackets, and neither a path, a figure nor one of
/// the names.
[[nodiscard]] QStringList notLookedUp(const QQuickItem& root, QStringList names);
/// The texts that were looked up and for which there is too little room.
[[nodiscard]] QStringList cut(const QQuickItem& root);

} // namespace orlen::ShownTexts
