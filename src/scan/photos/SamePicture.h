#pragma once

#include "scan/photos/PhotoAnalyzer.h"

#include <memory>
#include <utility>

/// Tells copies of one picture from different shots of one scene. Pure; any thread.
namespace orlen::SamePicture {

/// How much of the structure of one picture is not in the other at the place where they differ most: 0 for
/// the same picture, up to 2 where they have nothing in common. Scaling, re-encoding, sharpening and the loss
/// of colours change little everywhere; a caption, or something that moved, changes a place completely.
/// Symmetric. Some 20 microseconds.
[[nodiscard]] float difference(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other);
/// The same without the finest structure, which a very small copy cannot have.
[[nodiscard]] float coarseDifference(const FeaturePrint::Tile& one, const FeaturePrint::Tile& other);

/// A picture whose tile is unpacked once, for several comparisons. Borrows the photo.
struct Frame {
    explicit Frame(const PhotoInfo& of);
    Frame(const PhotoInfo& of, std::shared_ptr<const FeaturePrint::Tile> unpacked)
        : photo(&of), tile(std::move(unpacked))
    {
    }

    const PhotoInfo* photo;
    std::shared_ptr<const FeaturePrint::Tile> tile; ///< none without a print
};

/// Whether both are the same frame, apart from such changes. False for a picture without a print.
[[nodiscard]] bool isCopy(const Frame& one, const Frame& other);
[[nodiscard]] bool isCopy(const PhotoInfo& one, const PhotoInfo& other);

/// Whether the first is the second with something drawn over it, such as a caption, a sticker or a signature:
/// most of the second is there unchanged, and in other places the first has more structure, and not that of
/// the second.
[[nodiscard]] bool isDrawnOver(const Frame& one, const Frame& other);

} // namespace orlen::SamePicture
