#pragma once

#include "app/Format.h"
#include "app/Workers.h"
#include "cli/Session.h"
#include "scan/ScanProgress.h"
#include "scan/walk/Walk.h"

#include <QObject>

#include <optional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

/// Shared by the commands that search folders. Main thread unless noted.
namespace orlen::FolderSearch {

/// Walks the folders, or the home folder if none are given. Any thread.
[[nodiscard]] inline Walk::Found walked(const std::vector<std::string>& folders, ScanProgress& progress,
                                        const std::stop_token& stop)
{
    return folders.empty() ? Walk::home(progress, stop) : Walk::folders(folders, progress, stop);
}

/// Calls `search(progress, stop)` on a worker, shows its progress and returns its result. Ctrl-C stops it.
template <typename Search>
[[nodiscard]] auto run(Session& session, Search search)
{
    using Found = decltype(search(std::declval<ScanProgress&>(), std::stop_token()));
    std::optional<Found> found;
    ScanProgress progress;
    QObject receiver;
    Workers workers(receiver);
    std::stop_source stop =
        workers.start([&](const std::stop_token& token) { return search(progress, token); },
                      [&](Found result) { found = std::move(result); });
    session.run({[&] { return found.has_value(); }, [&] { stop.request_stop(); },
                 [&] {
                     return Format::counted(progress.files(), "file") + " examined · " +
                            Format::shownPath(progress.current());
                 }});
    return *std::move(found);
}

} // namespace orlen::FolderSearch
