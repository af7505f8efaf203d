#include "clean/HomeMounts.h"

#include "platform/files/MountTable.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen {

bool HomeMounts::isForeign(std::string_view path) const
{
    return std::any_of(foreign.begin(), foreign.end(),
                       [&](const std::string& point) { return PathText::isAtOrBelow(path, point); });
}

HomeMounts HomeMounts::read(const Places& places)
{
    HomeMounts found;
    const MountTable table = MountTable::read(places.mountTable);
    const auto take = [&](const std::string& home) {
        for (const Mount* mount : table.below(home)) {
            const std::string point = places.normalized(mount->point);
            found.points.push_back(point);
            if (mount->kind == MountClass::foreign)
                found.foreign.push_back(point);
        }
    };
    // The kernel only has resolved paths; a table made elsewhere may name the home folder as the user does.
    take(places.home);
    if (places.resolvedHome != places.home && !places.resolvedHome.empty())
        take(places.resolvedHome);
    return found;
}

} // namespace orlen
