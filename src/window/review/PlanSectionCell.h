#pragma once

#include "model/CleanPlan.h"
#include "model/PlanTicks.h"
#include "window/review/PlanModel.h"

#include <QColor>
#include <QVariant>

#include <cstddef>

/// What the heading of a plan's section shows. Main thread.
namespace orlen::PlanSectionCell {

/// Nothing for a role of entries alone. `number` is the section's, `count` how many entries it shows without
/// a filter.
[[nodiscard]] QVariant value(const PlanSection& section, PlanModel::Role role, const PlanTicks& ticks,
                             std::size_t number, int count);
/// Of the section's badge, and of those before its entries.
[[nodiscard]] QColor tone(const PlanSection& section);

} // namespace orlen::PlanSectionCell
