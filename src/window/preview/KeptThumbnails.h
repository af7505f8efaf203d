#pragma once

#include <string>
#include <vector>

/// The thumbnails that file managers have made of the user's files, as the freedesktop Thumbnail Managing
/// Standard has it. Orlen makes none.
namespace orlen::KeptThumbnails {

/// Where there may be one of a file, best first for a picture of so many pixels across. Some may be missing
/// or of an earlier state of the file. Left out is what lies behind a link. Blocks on the disk; any thread.
[[nodiscard]] std::vector<std::string> candidates(const std::string& path, int pixels);

} // namespace orlen::KeptThumbnails
