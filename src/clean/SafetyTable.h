#pragma once

#include "clean/HomeMounts.h"
#include "clean/PathTrie.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Everything that decides whether a path is protected, as it was at one moment. Immutable once made, so any
/// number of threads may ask; asking reads the path once and never touches the disk.
class SafetyTable {
public:
    /// Blocks on the disk: mounts, settings of sync programs, and which protected places exist.
    explicit SafetyTable(Places places);

    struct Verdict {
        bool isProtected = true;
        bool areContentsProtected = true;
        friend bool operator==(const Verdict&, const Verdict&) = default;
    };
    [[nodiscard]] Verdict judge(std::string_view path) const;

private:
    void addRules(const HomeMounts& mounts);
    void addFound(const HomeMounts& mounts);
    /// Marks every parent of the path below the home folder, so that none is moved with the path in it.
    void guardParents(std::string_view path);

    [[nodiscard]] Verdict judgeNormal(std::string_view path) const;

    Places m_places;
    PathTrie m_marks;
};

} // namespace orlen
