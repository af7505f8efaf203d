#pragma once

#include "platform/images/RgbImage.h"
#include "recognition/PictureFeature.h"

#include <opencv2/core/mat.hpp>

#include <vector>

namespace orlen {

/// The planes all features are computed from. Pure; any thread.
struct PicturePlanes {
    explicit PicturePlanes(const RgbImage& image);

    cv::Mat rgb;    ///< three channels of 8 bits; its own copy
    cv::Mat grey;   ///< 8 bits
    cv::Mat chroma; ///< largest minus smallest channel, 8 bits
};

/// Each appends its features, always the same in the same order. The picture has at least 8 pixels on each
/// side.
void addToneFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features);
void addBlockFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features);
void addEdgeFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features);
void addBorderFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features);
void addTextFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features);
void addCaptionFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features);

} // namespace orlen
