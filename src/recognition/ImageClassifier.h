#pragma once

#include "platform/images/ImageLabel.h"
#include "platform/images/RgbImage.h"

#include <vector>

/// Tells what kind of picture one is: screenshot, receipt, document, meme, illustration. Any thread.
namespace orlen::ImageClassifier {

/// What is known about the file beside its pixels.
struct Evidence {
    bool isFromCamera = false; ///< speaks against a screenshot and a meme, never against a photographed page
};

/// The words for an upright thumbnail, most confident first. The confidences are calibrated to the thresholds
/// of the photo analysis: "screenshot" 0.3, "receipt" 0.2, "document" 0.6, "meme" 0.2, "illustration" 0.3. A
/// plain photo gets none that decides anything.
[[nodiscard]] std::vector<ImageLabel> labels(const RgbImage& image, const Evidence& evidence);

} // namespace orlen::ImageClassifier
