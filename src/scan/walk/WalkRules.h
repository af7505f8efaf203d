#pragma once

#include <string>
#include <string_view>

namespace orlen {

class PathMarks;
class TreeListing;
struct Places;

/// What the walk skips and collects, apart from safety rules. Any thread.
namespace WalkRules {

/// Marks folders in which images are collected.
inline constexpr unsigned kImageFolder = 2;
/// Marks the folders of the user's films.
inline constexpr unsigned kFilmFolder = 4;
/// Measured by the storage breakdown as well.
inline constexpr unsigned kCountedElsewhere = 8;

/// Top-level names of the home folder that are skipped.
[[nodiscard]] bool isLeftOutAtTop(std::string_view name);
/// Folders that are skipped everywhere: hidden ones, packages, installed modules.
[[nodiscard]] bool isLeftOut(std::string_view name);
[[nodiscard]] bool isImageName(std::string_view name);
/// Marks the folders of images and of films.
void markMediaFolders(const Places& places, PathMarks& marks);

/// What a folder's listing says about it.
enum class FolderNature {
    plain,
    workTree,    ///< holds a repository, otherwise plain
    package,     ///< a single unit to its user: a program, a bare repository, an environment
    mirrored,    ///< mirrored by a sync program
    taggedCache, ///< has the signature of a cache directory, and is none of these nor a work tree
};

[[nodiscard]] FolderNature natureOf(const TreeListing& listing);
/// The same for a single folder; `plain` if it cannot be read. Blocks on the disk.
[[nodiscard]] FolderNature natureOf(const std::string& folder);
/// Whether the file, named relative to an open folder, has the signature of a cache directory's tag. Blocks
/// on the disk.
[[nodiscard]] bool hasCacheTag(int folder, const std::string& file);
/// Whether a folder is an environment in which programs are installed. Blocks on the disk.
[[nodiscard]] bool isEnvironment(const std::string& folder);

} // namespace WalkRules
} // namespace orlen
