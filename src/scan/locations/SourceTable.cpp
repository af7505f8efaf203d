#include "scan/locations/SourceTable.h"

#include "scan/locations/mac/MacSources.h"
#include "scan/locations/tables/Tables.h"

#include <iterator>
#include <utility>

namespace orlen {

const std::vector<SourceRow>& sourceRows()
{
    static const std::vector<SourceRow> rows = [] {
        // What comes from a Mac is listed first in every finding.
        std::vector<SourceRow> all = macSources();
        for (auto* const part : {SourceTables::cacheNames, SourceTables::tools, SourceTables::apps,
                                 SourceTables::logs, SourceTables::personal}) {
            std::vector<SourceRow> further = part();
            all.insert(all.end(), std::make_move_iterator(further.begin()),
                       std::make_move_iterator(further.end()));
        }
        return all;
    }();
    return rows;
}

} // namespace orlen
