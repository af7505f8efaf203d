#pragma once

#include "clean/CleanRecord.h"
#include "model/FileEntry.h"
#include "platform/files/FileStatus.h"
#include "support/TempHome.h"

#include <map>
#include <string>
#include <vector>

namespace orlen {

/// Items that are cleaned and put back under bad conditions, every fifth of them a folder, in folders that
/// make many of them share a name.
class WatchedItems {
public:
    static constexpr int kCount = 20;

    explicit WatchedItems(const TempHome& home, int count = kCount);

    [[nodiscard]] std::vector<FileEntry> entries() const;

    /// Checks that each item is in its place, or in the Trash with an info file that names its place, and
    /// that the history knows which. Returns how many are in the Trash.
    [[nodiscard]] int expectNoneLostOrUnknown(const std::vector<CleanRecord>& history) const;
    /// Checks that no info file is without its item.
    void expectNoStrayInfo() const;

private:
    std::string m_trash;
    std::map<std::string, FileIdentity> m_identities;
};

} // namespace orlen
