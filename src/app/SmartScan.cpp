#include "app/SmartScan.h"

#include "clean/Safety.h"
#include "model/Rater.h"
#include "platform/process/ThreadPriority.h"
#include "platform/process/Threads.h"
#include "scan/ScanEngine.h"
#include "scan/locations/SourceReader.h"

#include <utility>

namespace orlen::SmartScan {

Outcome run(ScanEngine& engine)
{
    ThreadPriority::giveWay(); // before any other thread starts
    Safety::refresh();
    Outcome outcome;
    const std::stop_token stop = engine.flag().token();
    FolderTotals totals;
    const auto measure = [&] { outcome.breakdown = StorageBreakdown::compute(stop, totals); };
    auto measuring = Threads::start("orlen-storage", [&](const std::stop_token&) { measure(); });
    std::vector<Finding> raw = engine.run();
    if (!stop.stop_requested())
        outcome.findings = Rater::rate(std::move(raw));
    if (measuring)
        measuring->join();
    else
        measure();
    outcome.folders = FolderTotals::reading(engine.folderTotals(), totals);
    return outcome;
}

std::vector<Finding> trash(const std::stop_token& stop)
{
    ThreadPriority::giveWay();
    ScanProgress progress;
    std::vector<FileEntry> entries = SourceReader(progress, stop).entries(FindingKind::trash);
    if (entries.empty())
        return {};
    return Rater::rate({Finding(FindingKind::trash, std::move(entries))});
}

} // namespace orlen::SmartScan
