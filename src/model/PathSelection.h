#pragma once

#include "model/CleanPlan.h"
#include "model/Finding.h"
#include "model/PathTree.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

/// The rules of ticking. A path has one tick, no matter how many lists show it. Moving a folder moves what is
/// in it, so ticking a folder ticks everything listed inside: what is ticked is exactly what moves. Pure; any
/// thread.
namespace orlen::PathSelection {

/// The entries that can be ticked, in order: those of the cleanable findings, or all of a plan.
[[nodiscard]] PathTree listedIn(const std::vector<Finding>& findings);
[[nodiscard]] PathTree listedIn(const CleanPlan& plan);

/// Ticks the paths, and with a folder what is listed inside it.
void tick(std::set<std::string>& ticked, const PathTree& listed, const std::string& path);
/// Unticks the path, everything listed inside it, and the folders that contain it, since moving them would
/// move it.
void untick(std::set<std::string>& ticked, const PathTree& listed, const std::string& path);
/// Ticks everything listed inside ticked folders.
void addInside(std::set<std::string>& ticked, const PathTree& listed);
/// Unticks folders that contain something unticked.
void dropOpenFolders(std::set<std::string>& ticked, const PathTree& listed);

/// The entries in path order, without repeated paths and without those inside another entry.
[[nodiscard]] std::vector<FileEntry> outermost(std::vector<FileEntry> entries);
/// The entries that carrying out the plan moves, as `outermost`.
[[nodiscard]] std::vector<FileEntry> moving(const CleanPlan& plan);

struct Amount {
    std::int64_t items = 0;
    std::int64_t bytes = 0;

    friend bool operator==(const Amount&, const Amount&) = default;
};
/// Of the entries `outermost` would leave. If a path is listed with several sizes, the first counts.
[[nodiscard]] Amount amountOf(std::vector<const FileEntry*> entries);
/// The same for bytes only, of distinct entries that are all listed. Fast unless listed paths contain one
/// another.
[[nodiscard]] std::int64_t sizeOf(std::vector<const FileEntry*> entries, const PathTree& listed);

} // namespace orlen::PathSelection
