#pragma once

#include "model/Finding.h"

#include <cstddef>
#include <vector>

namespace orlen {

/// Which entries of a scan stand for the same things: several findings may list one path, and one may list a
/// folder in which another lists a file. These are few: whoever goes through all entries has to compare the
/// paths of only those. Immutable; any thread.
class Overlaps {
public:
    explicit Overlaps(const std::vector<Finding>& findings);

    /// Whether another entry has the same path. `finding` is one of those, and `entry` one of its items.
    [[nodiscard]] bool isShared(const std::vector<Finding>& findings, const Finding& finding,
                                const FileEntry& entry) const;
    /// Whether another entry is a folder above it.
    [[nodiscard]] bool isInside(const std::vector<Finding>& findings, const Finding& finding,
                                const FileEntry& entry) const;

private:
    struct Marks {
        bool isShared = false;
        bool isInside = false;
    };

    [[nodiscard]] const Marks& marksOf(const std::vector<Finding>& findings, const Finding& finding,
                                       const FileEntry& entry) const;

    std::vector<std::vector<Marks>> m_marks; ///< by finding and entry
};

} // namespace orlen
