#include "cli/SavedExclusions.h"

#include "app/AppTexts.h"
#include "clean/Persist.h"
#include "cli/Session.h"
#include "platform/files/Places.h"

#include <utility>

namespace orlen::SavedExclusions {

Exclusions load(Session& session)
{
    Persist::Loaded<Exclusion> loaded = Persist::loadExclusions();
    if (loaded.problem == Persist::Problem::damaged)
        session.complain(AppTexts::damaged(AppTexts::kExclusions));
    else if (loaded.problem == Persist::Problem::unreadable)
        session.complain(AppTexts::unreadable(AppTexts::kExclusions, loaded.error));
    return {std::move(loaded.records), Places::current().home};
}

} // namespace orlen::SavedExclusions
