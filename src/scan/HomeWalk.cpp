#include "scan/HomeWalk.h"

#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "scan/HomeStock.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeScan.h"

#include <span>
#include <string>

namespace orlen::HomeWalk {

std::shared_ptr<const HomeFiles> walk(const std::stop_token& stop, Limits limits)
{
    const Places& places = Places::current();
    const std::shared_ptr<const MountTable> mounts = CurrentMounts::table();
    HomeStock stock(limits, *mounts);
    const TreeRoot root{places.isHomeUsable && Reachability::admit(places.home).ok() ? resolved(places.home)
                                                                                     : std::string()};
    if (!root.path.empty())
        scanTrees(std::span(&root, 1), stock, *mounts, {}, stop);
    if (stop.stop_requested())
        return nullptr;
    return std::make_shared<const HomeFiles>(stock.contents(places.home));
}

} // namespace orlen::HomeWalk
