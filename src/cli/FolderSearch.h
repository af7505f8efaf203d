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

/// What the commands have in common that search through folders. Main thread, unless told otherwise.
namespace orlen::FolderSearch {

/// What lies in the folders; in the home folder when there are none. Any thread.
[[nodiscard]] inline Walk::Found walked(const std::vector<std::string>& folders, ScanProgress& progress,
                                        const std::stop_token& stop)
{
    return folders.empty() ? Walk::home(progress, stop) : Walk::folders(folders, progress, stop);
}

/// Calls `search(progress, stop)` on a worker and returns what it found; its progress is shown meanwhile, and
/// Ctrl-C stops it.
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
