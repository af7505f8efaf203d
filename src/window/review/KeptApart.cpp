#include "window/review/KeptApart.h"

#include "model/Text.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

namespace orlen::KeptApart {

void say(AppModel& app)
{
    // TRANSLATORS: Some ticks were removed, because one file of each set of copies has to stay.
    constexpr Text kText = message("One file of each set stays, so either it is ticked or its copies are.");
    WindowState::of(app).say(DisplayText::text(kText));
}

} // namespace orlen::KeptApart
