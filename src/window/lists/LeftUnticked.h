#pragma once

#include "app/AppModel.h"

#include <cstddef>

/// Main thread.
namespace orlen::LeftUnticked {

/// Says in a notice how many entries ticking all has left out; nothing for none.
void say(AppModel& app, std::size_t count);

} // namespace orlen::LeftUnticked
