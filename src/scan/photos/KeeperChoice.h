#pragma once

#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/SamePicture.h"
#include "scan/photos/UnpackedTiles.h"

#include <cstddef>
#include <string_view>
#include <vector>

/// Which of several pictures that look alike is kept. Of different shots of one scene it is the sharpest. Of
/// copies of one picture, whose sharpness says nothing because scaling and re-encoding change it, it is the
/// one that lost least. Pure; any thread.
namespace orlen::KeeperChoice {

/// One of the members, which are indices into the photos, at least one, and have prints.
[[nodiscard]] std::size_t keeper(const std::vector<PhotoInfo>& photos,
                                 const std::vector<std::size_t>& members);
/// The same with tiles that may be unpacked already.
[[nodiscard]] std::size_t keeper(const std::vector<PhotoInfo>& photos,
                                 const std::vector<std::size_t>& members, UnpackedTiles& tiles);

/// What the other picture lacks, as a note.
[[nodiscard]] Text reason(const PhotoInfo& other, const SamePicture::Frame& keeper);

} // namespace orlen::KeeperChoice
