#pragma once

#include "platform/images/ImageLabel.h"
#include "platform/images/RgbImage.h"

#include <vector>

/// Classifies pictures: screenshot, receipt, document, meme, illustration. Any thread.
namespace orlen::ImageClassifier {

/// What is known about the file besides its pixels.
struct Evidence {
    bool isFromCamera = false; ///< makes a screenshot or meme unlikely, but not a photographed page
};

/// The labels of an upright thumbnail, most confident first. Confidences are calibrated to the thresholds of
/// the photo analysis: "screenshot" 0.3, "receipt" 0.2, "document" 0.6, "meme" 0.2, "illustration" 0.3. A
/// plain photo reaches none of them.
[[nodiscard]] std::vector<ImageLabel> labels(const RgbImage& image, const Evidence& evidence);

/// Whether the photo analysis goes by this label.
[[nodiscard]] bool decides(const ImageLabel& label);
/// Whether it says receipt or document, and is surer than it need be to decide.
[[nodiscard]] bool isSurelyPage(const ImageLabel& label);

} // namespace orlen::ImageClassifier
