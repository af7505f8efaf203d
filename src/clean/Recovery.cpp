#include "clean/Recovery.h"

#include "clean/trash/Trash.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

namespace orlen::Recovery {

CleanRecord recordOf(const Journal& journal)
{
    CleanRecord record{journal.id, journal.started, journal.title, {}, 0};
    std::map<std::string, Trash::Sought> sought;
    for (const Journal::Item& item : journal.items)
        sought.emplace(item.path, Trash::Sought{item.identity, {}});
    Trash::find(sought, journal.started);
    for (const Journal::Item& item : journal.items) {
        const auto& found = sought.at(item.path).found;
        if (!found)
            continue;
        record.items.push_back({item.path, found->trashed, item.size, false});
        record.date = std::max(record.date, found->time);
    }
    return record;
}

bool isOutOfReach(const Journal& journal, const CleanRecord& record)
{
    std::set<std::string_view> found;
    for (const TrashedItem& item : record.items)
        found.insert(item.original);
    return std::ranges::any_of(journal.items, [&](const Journal::Item& item) {
        return !found.contains(item.path) && !exists(std::string(PathText::parent(item.path)));
    });
}

void markRestored(CleanRecord& record, const Journal& journal)
{
    std::map<std::string_view, LastingIdentity> noted;
    for (const Journal::Item& item : journal.items)
        noted.emplace(item.path, item.identity);
    for (TrashedItem& item : record.items) {
        const auto identity = noted.find(item.original);
        if (item.restored || identity == noted.end() || Trash::identityOf(item.trashed) == identity->second)
            continue;
        const auto place = statusOf(item.original);
        item.restored = place.ok() && place.value().lasting() == identity->second;
        if (item.restored)
            Trash::forget(item.trashed, item.original);
    }
}

} // namespace orlen::Recovery
