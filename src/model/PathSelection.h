#pragma once

#include "model/CleanPlan.h"
#include "model/Finding.h"
#include "model/PathTree.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

/// What ticked paths move. A path has one tick, in however many lists it stands. A folder takes along what
/// lies in it, so a ticked folder has everything ticked that is listed inside it: what is ticked is exactly
/// what moves. Pure; any thread.
namespace orlen::PathSelection {

/// The entries that can be ticked: those of the cleanable findings, or all of a plan, in their order.
[[nodiscard]] PathTree listedIn(const std::vector<Finding>& findings);
[[nodiscard]] PathTree listedIn(const CleanPlan& plan);

/// Ticks the paths, and with a folder what is listed inside it.
void tick(std::set<std::string>& ticked, const PathTree& listed, const std::string& path);
/// Takes the tick away, also from what is listed inside the path, and from the folders that hold it, which
/// would take it along.
void untick(std::set<std::string>& ticked, const PathTree& listed, const std::string& path);
/// Ticks what is listed inside ticked folders.
void addInside(std::set<std::string>& ticked, const PathTree& listed);
/// Unticks the folders in which something listed is not ticked.
void dropOpenFolders(std::set<std::string>& ticked, const PathTree& listed);

/// The entries in path order, each path once and none that goes along with another one.
[[nodiscard]] std::vector<FileEntry> outermost(std::vector<FileEntry> entries);
/// What carrying out the plan moves: its entries as `outermost`.
[[nodiscard]] std::vector<FileEntry> moving(const CleanPlan& plan);

struct Amount {
    std::int64_t items = 0;
    std::int64_t bytes = 0;

    friend bool operator==(const Amount&, const Amount&) = default;
};
/// Of the entries that `outermost` leaves. Of a path listed with several sizes the first one counts.
[[nodiscard]] Amount amountOf(std::vector<const FileEntry*> entries);
/// Bytes of different entries, all of them listed, by the same rule: quick where no listed path holds
/// another.
[[nodiscard]] std::int64_t sizeOf(std::vector<const FileEntry*> entries, const PathTree& listed);

} // namespace orlen::PathSelection
