#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlen {
class UnreadableFolders;
}

/// Patterns in which "*" stands for any run of bytes within one component.
namespace orlen::Glob {

/// Whether the name fits any of the patterns. Pure.
[[nodiscard]] bool matchesAny(const std::vector<std::string_view>& patterns, std::string_view name);

struct Match {
    std::string path;
    std::vector<std::string> names; ///< what the components with a "*" stand for, in order
};

/// The paths that a pattern below a folder stands for, by name; the folder's own path is taken literally. A
/// component with a "*" stands for each folder there is that is no link; other components are taken as they
/// are, whether they exist or not. `unreadable`, when not null, is told of folders that could not be listed.
/// Blocks on the disk.
[[nodiscard]] std::vector<Match> paths(const std::string& folder, std::string_view pattern,
                                       UnreadableFolders* unreadable = nullptr);

} // namespace orlen::Glob
