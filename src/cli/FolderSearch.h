#pragma once

#include "app/Format.h"
#include "cli/Background.h"
#include "scan/ScanProgress.h"
#include "scan/walk/Walk.h"

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// Shared by the commands that search folders. Main thread unless noted.
namespace orlen::FolderSearch {

/// Resolves the folders given on the command line. Prints a complaint and returns nothing if one is
/// unreadable or protected. Blocks on the disk.
[[nodiscard]] std::optional<std::vector<std::string>> checked(Session& session,
                                                              const std::vector<std::string>& arguments);

/// Walks the folders, or the home folder if none are given. Any thread.
[[nodiscard]] Walk::Found walked(const std::vector<std::string>& folders, ScanProgress& progress,
                                 const std::stop_token& stop);

/// Calls `search(progress, stop)` on a worker, shows its progress and returns its result, or nothing if
/// Ctrl-C stopped it.
template <typename Search>
[[nodiscard]] auto run(Session& session, Search search)
{
    ScanProgress progress;
    return Background::resultUnlessCancelled(
        session,
        [&] {
            return Format::counted(progress.files(), "file") + " examined · " +
                   Format::shownPath(progress.current());
        },
        [&](const std::stop_token& stop) { return search(progress, stop); });
}

} // namespace orlen::FolderSearch
