#pragma once

#include "app/AppModel.h"

/// Changes what is never offered, and tells the outcome in a notice from which a change can be undone. Main
/// thread.
namespace orlen::ExclusionChange {

void add(AppModel& app, const Exclusion& exclusion);
void remove(AppModel& app, const Exclusion& exclusion);

} // namespace orlen::ExclusionChange
