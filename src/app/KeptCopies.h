#pragma once

#include "model/Finding.h"
#include "scan/duplicates/KeepRule.h"

#include <array>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// Keeps other files of the sets of duplicates or similar photos than a scan proposed.
namespace orlen::KeptCopies {

/// The findings of which a rule chooses.
inline constexpr std::array kKinds{FindingKind::duplicates, FindingKind::photoDuplicates};

struct Chosen {
    FindingKind kind = FindingKind::duplicates;
    /// The copies, with what is kept of each set as the rule says.
    std::vector<FileEntry> copies;
    /// Those that lie in a reference folder: they stay and are not offered.
    std::vector<FileEntry> references;
    /// Of each set that keeps another file: what it keeps now, and the copy that it kept before.
    struct Change {
        std::string kept;
        std::string former;
        bool isTickedAlone = false; ///< the former one
    };
    std::vector<Change> changes;
};

/// Takes all copies of one of those findings, those in reference folders of an earlier rule included. Photos
/// follow only the folders of the rule, as they differ in quality, and go on keeping what they do when it
/// ends. A set one of whose two files has changed since the scan stays as it is. Nothing when stopped. Blocks
/// on the disk; any thread.
[[nodiscard]] std::optional<Chosen> by(const KeepRule& rule, FindingKind kind, std::vector<FileEntry> copies,
                                       const std::stop_token& stop);

/// Entries of each of those findings, in their order.
using Entries = std::vector<std::vector<FileEntry>>;

/// Adds those that the findings have. Pure.
void addEntries(Entries& entries, const std::vector<Finding>& findings);
/// What the rule chooses of each; none when stopped. As `by`.
[[nodiscard]] std::vector<Chosen> ofAll(const KeepRule& rule, const Entries& entries,
                                        const std::stop_token& stop = {});

} // namespace orlen::KeptCopies
