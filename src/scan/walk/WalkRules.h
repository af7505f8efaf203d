#pragma once

#include <string>
#include <string_view>

namespace orlen {

class PathMarks;
class TreeListing;
struct Places;

/// What the walk over the user's files leaves out and what it collects, apart from the safety rules. Any
/// thread.
namespace WalkRules {

/// Mark on the folders in which image files are collected.
inline constexpr unsigned kImageFolder = 2;

/// Top-level names of the home folder that are never walked.
[[nodiscard]] bool isLeftOutAtTop(std::string_view name);
/// Folders that are never entered, wherever they lie: hidden ones, packages, installed modules.
[[nodiscard]] bool isLeftOut(std::string_view name);
[[nodiscard]] bool isImageName(std::string_view name);
/// Marks the image folders with `kImageFolder`.
void markImageFolders(const Places& places, PathMarks& marks);

/// What a folder's names tell about it.
enum class FolderNature {
    plain,
    package,     ///< one thing to its user: a program, a bare repository, an environment
    mirrored,    ///< kept in step with a server by a sync program
    taggedCache, ///< carries the signature of a cache directory, and is neither of these nor a work tree
};

[[nodiscard]] FolderNature natureOf(const TreeListing& listing);
/// The same for a folder that is looked at by itself; `plain` when it cannot be read. Blocks on the disk.
[[nodiscard]] FolderNature natureOf(const std::string& folder);
/// Whether a folder is an environment in which programs are installed, wherever it lies. Blocks on the disk.
[[nodiscard]] bool isEnvironment(const std::string& folder);

} // namespace WalkRules
} // namespace orlen
