#pragma once

namespace orlen {

class AppModel;

/// Says in a notice that ticks went because a kept file and its copies do not move together. Main thread.
namespace KeptApart {

void say(AppModel& app);

} // namespace KeptApart
} // namespace orlen
