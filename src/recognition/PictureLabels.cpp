#include "recognition/PictureLabels.h"

#include "recognition/DistantPage.h"
#include "recognition/ImageClassifier.h"
#include "recognition/LineDirection.h"

#include <algorithm>
#include <cstdint>

namespace orlen {

namespace {

using Labels = std::vector<ImageLabel>;

bool decidesAny(const Labels& labels)
{
    return std::any_of(labels.begin(), labels.end(), ImageClassifier::decides);
}

bool isSurelyPage(const Labels& labels)
{
    return std::any_of(labels.begin(), labels.end(), ImageClassifier::isSurelyPage);
}

/// The same part of the whole picture.
PixelRect ofWhole(const PixelRect& part, const RgbImage& small, PixelSize whole)
{
    const auto scaled = [](int length, int to, int from) {
        return static_cast<int>(std::int64_t{length} * to / from);
    };
    return {scaled(part.x, whole.width, small.width), scaled(part.y, whole.height, small.height),
            scaled(part.width, whole.width, small.width), scaled(part.height, whole.height, small.height)};
}

} // namespace

std::vector<ImageLabel> PictureLabels::of(int descriptor, const ImageDecoder::Decoded& picture)
{
    const ImageClassifier::Evidence evidence{picture.traits.isFromCamera};
    Labels labels = ImageClassifier::labels(picture.small, evidence);
    if (decidesAny(labels))
        return labels;
    const auto part = DistantPage::partOf(picture.small);
    if (!part)
        return labels;
    PictureBound bound = ImageDecoder::kForRecognition;
    bound.part = ofWhole(*part, picture.small, picture.upright());
    const auto closer = ImageDecoder::decode(descriptor, bound);
    if (!closer)
        return labels;
    // The edges of the sheet may hide how its lines run, so both ways are tried. What else lies there bright
    // on dark has seldom been seen so near in learning, and has to look more like a page than a whole
    // picture.
    for (const RgbImage& look : {closer->small, LineDirection::turned(closer->small)}) {
        Labels closerLabels = ImageClassifier::labels(look, evidence);
        if (isSurelyPage(closerLabels))
            return closerLabels;
    }
    return labels;
}

} // namespace orlen
