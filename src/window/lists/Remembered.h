#pragma once

#include "scan/duplicates/KeepRule.h"
#include "window/findings/EntryOrder.h"

#include <QString>

#include <optional>

/// What the window remembers of the user's choices between starts, in its settings file. Main thread.
namespace orlen::Remembered {

/// Nothing when none was chosen yet, or the file holds nonsense.
[[nodiscard]] std::optional<double> largeThresholdMB();
void setLargeThresholdMB(double megabytes);

/// Which file of each set is kept; the usual rule when none was chosen yet. Folders that no longer can be in
/// a rule, as they are no whole paths, are left out.
[[nodiscard]] KeepRule keepRule();
void setKeepRule(const KeepRule& rule);

/// What was chosen of several ways to show something, by its name; empty when nothing was chosen yet.
[[nodiscard]] QString choice(const QString& name);
void setChoice(const QString& name, const QString& choice);

/// The order of a list, by its name; the usual one when none was chosen yet. Without a filter.
[[nodiscard]] EntryOrder::Wish order(const QString& list);
void setOrder(const QString& list, const EntryOrder::Wish& wish);

} // namespace orlen::Remembered
