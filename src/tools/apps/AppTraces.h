#pragma once

#include "clean/CleanRecord.h"

#include <set>
#include <span>
#include <string>
#include <string_view>

namespace orlen {

/// Applications that are remembered, installed or not: by the desktop's lists of what opens which files and
/// of what was used, by launchers whose program is gone, and by the history, when another folder of the name
/// has gone to the Trash. A plain value.
class AppTraces {
public:
    /// Blocks on the disk.
    [[nodiscard]] static AppTraces read(std::span<const CleanRecord> history);

    /// Whether one of them has the folder's name. Pure.
    [[nodiscard]] bool has(std::string_view folder) const;

private:
    void add(std::string_view name);
    void addHistory(std::span<const CleanRecord> history);
    void addEntriesNamedIn(std::string_view text);

    std::set<std::string, std::less<>> m_names; ///< as `InstalledNames::plain`
};

} // namespace orlen
