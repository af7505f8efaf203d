#include "app/FolderHistory.h"

#include "clean/Persist.h"

#include <chrono>
#include <utility>

namespace orlen {

const std::vector<FolderReading>& FolderHistory::readings() const
{
    checkThread();
    if (!m_readings)
        m_readings = Persist::loadFolderReadings().records;
    return *m_readings;
}

void FolderHistory::record(FolderReading reading, TimePoint now)
{
    std::vector<FolderReading> readings = this->readings();
    reading.date = std::chrono::floor<std::chrono::seconds>(now); // as it is kept in the file
    FolderReadings::add(readings, std::move(reading));
    m_readings = std::move(readings);
    // Losing a reading only makes an earlier one the last.
    if (m_saving == Saving::all)
        (void)Persist::saveFolderReadings(*m_readings);
    Q_EMIT changed();
}

} // namespace orlen
