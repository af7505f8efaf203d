#pragma once

#include "platform/images/ImageLabel.h"
#include "recognition/ImageDecoder.h"

#include <vector>

/// The labels of a picture, with a closer look at a page that lies far away. As ImageDecoder, only for the
/// recognizer.
namespace orlen::PictureLabels {

/// Of the picture in an open file, decoded for recognition already; as ImageClassifier::labels.
[[nodiscard]] std::vector<ImageLabel> of(int descriptor, const ImageDecoder::Decoded& picture);

} // namespace orlen::PictureLabels
