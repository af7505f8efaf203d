#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlen {
class UnreadableFolders;
}

/// Patterns in which "*" matches any number of bytes within one component.
namespace orlen::Glob {

/// Whether any of the patterns matches the name. Pure.
[[nodiscard]] bool matchesAny(const std::vector<std::string_view>& patterns, std::string_view name);

struct Match {
    std::string path;
    std::vector<std::string> names; ///< what the components with a "*" matched, in order
};

/// The paths matched by a pattern below a folder, sorted by name; the folder's own path is literal. A
/// component with a "*" matches existing folders that are not links; others are taken as they are, existing
/// or not. `unreadable`, if not null, collects folders that could not be listed. Blocks on the disk.
[[nodiscard]] std::vector<Match> paths(const std::string& folder, std::string_view pattern,
                                       UnreadableFolders* unreadable = nullptr);

} // namespace orlen::Glob
