#pragma once

#include "platform/text/PathText.h"

#include <string_view>
#include <unordered_set>

namespace orlen {

/// Some paths, and which of them another path lies at or below. The paths are not copied: they outlive this.
class PathCover {
public:
    void add(std::string_view path) { m_paths.insert(path); }

    /// The nearest one; empty for none.
    [[nodiscard]] std::string_view of(std::string_view path) const
    {
        for (; path.size() > 1; path = PathText::parent(path)) {
            if (m_paths.contains(path))
                return path;
        }
        return {};
    }

private:
    std::unordered_set<std::string_view> m_paths;
};

} // namespace orlen
