#include "Require.h"
#include "clean/FolderReadingJson.h"
#include "insight/Growth.h"

#include <cstdint>

/// Whatever a file holds, what is read of it can be compared, added to, written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const auto decoded = FolderReadingJson::decode({reinterpret_cast<const char*>(data), size});
    const auto again = FolderReadingJson::decode(FolderReadingJson::encode(decoded.records));
    require(again.isWhole && again.records == decoded.records);

    const auto growth = Growth::sinceLastScan(decoded.records);
    require(growth.has_value() == (decoded.records.size() > 1));
    for (const Growth::Folder& folder : growth.value_or(Growth{}).folders)
        require(folder.bytes() > 0);
    std::vector<FolderReading> readings = decoded.records;
    FolderReadings::add(readings, {*timeFromIso("2030-01-01T00:00:00Z"), 0, {}});
    require(readings.size() <= FolderReadings::kMost);
    return 0;
}
