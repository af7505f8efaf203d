#include "recognition/PictureFeatures.h"

#include "recognition/PictureMatrix.h"
#include "recognition/PicturePlanes.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>

namespace orlen {

namespace {

// Blocks, lines and components need space; smaller pictures show so little that it does not matter how they
// are enlarged.
constexpr int kLeastSide = 16;

cv::Mat copyOf(const RgbImage& image)
{
    cv::Mat copy = matrixOf(image);
    if (std::min(copy.rows, copy.cols) >= kLeastSide)
        return copy;
    cv::Mat enlarged;
    const cv::Size size(std::max(copy.cols, kLeastSide), std::max(copy.rows, kLeastSide));
    cv::resize(copy, enlarged, size, 0, 0, cv::INTER_NEAREST);
    return enlarged;
}

} // namespace

PicturePlanes::PicturePlanes(const RgbImage& image) : rgb(copyOf(image))
{
    cv::cvtColor(rgb, grey, cv::COLOR_RGB2GRAY);
    chroma.create(rgb.size(), CV_8U);
    for (int y = 0; y < rgb.rows; ++y) {
        const auto* pixel = rgb.ptr<cv::Vec3b>(y);
        std::uint8_t* out = chroma.ptr(y);
        for (int x = 0; x < rgb.cols; ++x) {
            const auto [least, most] = std::minmax({pixel[x][0], pixel[x][1], pixel[x][2]});
            out[x] = static_cast<std::uint8_t>(most - least);
        }
    }
}

std::vector<PictureFeature> PictureFeatures::of(const RgbImage& image)
{
    std::vector<PictureFeature> features;
    if (image.isEmpty())
        return features;
    const PicturePlanes planes(image);
    const double shape = static_cast<double>(image.width) / image.height;
    features.push_back({"shape", static_cast<float>(std::log(shape))});
    addToneFeatures(planes, features);
    addBlockFeatures(planes, features);
    addEdgeFeatures(planes, features);
    addBorderFeatures(planes, features);
    addTextFeatures(planes, features);
    addCaptionFeatures(planes, features);
    return features;
}

float PictureFeatures::valueOf(const std::vector<PictureFeature>& features, std::string_view name)
{
    const auto found = std::find_if(features.begin(), features.end(),
                                    [&](const PictureFeature& f) { return f.name == name; });
    return found == features.end() ? 0 : found->value;
}

} // namespace orlen
