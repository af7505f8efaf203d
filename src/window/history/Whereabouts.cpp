#include "window/history/Whereabouts.h"

#include "platform/files/FileStatus.h"
#include "platform/values/CheckedSum.h"
#include "window/lists/DisplayText.h"
#include "window/lists/WordSearch.h"

namespace orlen::Whereabouts {

Place of(const TrashedItem& item)
{
    if (item.restored)
        return Place::restored;
    return !item.trashed.empty() && exists(item.trashed) ? Place::inTrash : Place::gone;
}

Sums sumsOf(const CleanRecord& record, const std::stop_token& stop)
{
    Sums sums;
    for (const TrashedItem& item : record.items) {
        if (stop.stop_requested())
            break;
        switch (of(item)) {
        case Place::inTrash:
            ++sums.inTrash;
            sums.bytesInTrash = checkedAdd(sums.bytesInTrash, item.size);
            break;
        case Place::restored:
            break;
        case Place::gone:
            // A file manager may have put it back.
            if (!exists(item.original))
                sums.bytesFreed = checkedAdd(sums.bytesFreed, item.size);
            break;
        }
    }
    return sums;
}

bool isFound(const TrashedItem& item, const WordSearch& search)
{
    return search.fits(DisplayText::shortPath(item.original));
}

} // namespace orlen::Whereabouts
