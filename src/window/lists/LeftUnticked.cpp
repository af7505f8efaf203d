#include "window/lists/LeftUnticked.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

namespace orlen::LeftUnticked {

void say(AppModel& app, std::size_t count)
{
    if (count > 0)
        WindowState::of(app).say(
            DisplayText::counted(static_cast<std::int64_t>(count), WindowTexts::kLeftUnticked));
}

} // namespace orlen::LeftUnticked
