#pragma once

#include "model/Finding.h"

#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the results do with lists of findings. Pure; any thread.
namespace orlen::FindingLists {

/// The display order: most Safe bytes first, then most bytes.
[[nodiscard]] bool comesBefore(const Finding& a, const Finding& b);
/// The finding's entries with these paths.
[[nodiscard]] std::vector<const FileEntry*> selectedIn(const Finding& finding,
                                                       const std::set<std::string>& selection);
/// Everything Safe that can be cleaned, without folders that hold an entry to review.
[[nodiscard]] std::set<std::string> safePaths(const std::vector<Finding>& findings);
/// What a scan selects of that: only in findings that are Safe as a whole.
[[nodiscard]] std::set<std::string> proposed(const std::vector<Finding>& findings);
/// Those of the paths that may be ticked for the user: listed to be cleaned, by no finding rated Keep or only
/// ticked alone, and as folders without anything of that kind listed inside. With a folder, what is in it.
[[nodiscard]] std::set<std::string> tickable(const std::vector<Finding>& findings,
                                             std::span<const std::string> paths);
/// Whether the path, or a folder that it is in, is one of these.
[[nodiscard]] bool isIn(const std::set<std::string>& paths, std::string_view path);
/// The finding of these entries, which are rated already; none without entries.
[[nodiscard]] std::vector<Finding> findingOf(FindingKind kind, std::vector<FileEntry> entries);
/// Has entries that are the kept files of the sets in `all` say so where they are listed for another reason,
/// and others no longer.
void noteKept(std::vector<Finding>& findings, const std::vector<const Finding*>& all);
/// Puts the entries back among the findings that they were taken from.
void giveBack(std::vector<Finding>& findings, std::vector<Finding> taken);

} // namespace orlen::FindingLists
