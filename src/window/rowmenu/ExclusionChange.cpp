#include "window/rowmenu/ExclusionChange.h"

#include "app/AppTexts.h"
#include "app/Format.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <cerrno>
#include <system_error>

namespace orlen::ExclusionChange {

namespace {

Message problem(int error)
{
    if (error == EROFS)
        return WindowTexts::kExclusionsElsewhere;
    if (error == EFBIG)
        return WindowTexts::kExclusionsFull;
    return {WindowTexts::kExclusionsNotSaved, {{"error", std::generic_category().message(error)}}};
}

} // namespace

void add(AppModel& app, const Exclusion& exclusion)
{
    WindowState& window = WindowState::of(app);
    if (const auto added = app.exclusions()->add(exclusion); !added.ok())
        window.say(DisplayText::text(problem(added.error())));
    else
        window.say(DisplayText::text(AppTexts::nowExcluded(exclusion)),
                   [&app, exclusion] { remove(app, exclusion); });
}

void remove(AppModel& app, const Exclusion& exclusion)
{
    WindowState& window = WindowState::of(app);
    const auto removed = app.exclusions()->remove(exclusion);
    if (removed.error() == ENOENT)
        return;
    if (!removed.ok())
        window.say(DisplayText::text(problem(removed.error())));
    else
        window.say(DisplayText::text(AppTexts::noLongerExcluded(exclusion)),
                   [&app, exclusion] { add(app, exclusion); });
}

} // namespace orlen::ExclusionChange
