#pragma once

#include "platform/images/FeaturePrint.h"
#include "platform/images/ImageLabel.h"
#include "platform/images/PictureTraits.h"

#include <optional>
#include <vector>

namespace orlen {

/// What the photo analysis needs to know about a picture.
struct ImageAnalysis {
    int width = 0;                     ///< pixels of the whole picture; 0 if unknown
    int height = 0;                    ///< as width
    std::optional<FeaturePrint> print; ///< none of a flat or damaged picture
    double sharpness = 0;              ///< see Sharpness
    std::vector<ImageLabel> labels;    ///< most confident first
    PictureTraits traits;
};

} // namespace orlen
