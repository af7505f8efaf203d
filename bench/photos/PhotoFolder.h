#pragma once

#include "platform/images/RgbImage.h"

#include <optional>
#include <string>
#include <vector>

/// A folder of pictures with a table, labels.csv, whose first column names the files.
namespace orlen::PhotoFolder {

struct Photo {
    std::string file; ///< below the folder
    std::string kind; ///< the folder it lies in, or the first word of a name in sequences/
};

/// Those in develop/ and sequences/, in the order of the table, without the small ones, which are for
/// training. Nothing when there is no table.
[[nodiscard]] std::vector<Photo> photosOf(const std::string& folder);

/// A picture in full size; nothing when it cannot be read.
[[nodiscard]] std::optional<RgbImage> read(const std::string& path);

/// Encoded as JPEG and decoded again.
[[nodiscard]] RgbImage asJpeg(const RgbImage& image, int quality);

} // namespace orlen::PhotoFolder
