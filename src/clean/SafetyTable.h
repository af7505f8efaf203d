#pragma once

#include "clean/HomeMounts.h"
#include "clean/PathTrie.h"
#include "clean/Protection.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Everything that decides whether a path is protected, as of one moment. Immutable, so any number of threads
/// may ask; a query reads the path once and never touches the disk.
class SafetyTable {
public:
    /// Blocks on the disk: reads mounts, settings of sync programs, and which protected places exist.
    explicit SafetyTable(Places places);

    struct Verdict {
        bool isProtected = true;
        bool areContentsProtected = true;
        Protection protection = Protection::unclearPath; ///< which rule decided
        friend bool operator==(const Verdict&, const Verdict&) = default;
    };
    [[nodiscard]] Verdict judge(std::string_view path) const;

private:
    void addRules(const HomeMounts& mounts);
    void addFound(const HomeMounts& mounts);
    /// Marks every parent of the path below the home folder, so that none can be moved with the path inside.
    void guardParents(std::string_view path);
    void mark(std::string_view folder, std::string_view pattern, PathTrie::Mark mark, Protection protection);

    [[nodiscard]] Verdict judgeNormal(std::string_view path) const;

    Places m_places;
    PathTrie m_marks;
};

} // namespace orlen
