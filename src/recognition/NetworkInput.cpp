#include "recognition/NetworkInput.h"

#include "recognition/PictureMatrix.h"

#include <opencv2/imgproc.hpp>

namespace orlen {

namespace {

/// How much each pixel differs from its neighbourhood. Letters and their sharp edges vanish when a picture is
/// squashed; the mean of this does not.
cv::Mat roughness(const cv::Mat& rgb)
{
    cv::Mat grey;
    cv::Mat smooth;
    cv::Mat difference;
    cv::cvtColor(rgb, grey, cv::COLOR_RGB2GRAY);
    cv::blur(grey, smooth, {3, 3});
    cv::absdiff(grey, smooth, difference);
    return difference;
}

} // namespace

std::vector<std::uint8_t> NetworkInput::of(const RgbImage& image)
{
    if (image.isEmpty())
        return {};
    const cv::Mat rgb = matrixOf(image);
    cv::Mat rough;
    cv::Mat small;
    cv::resize(roughness(rgb), rough, {kSide, kSide}, 0, 0, cv::INTER_AREA);
    cv::resize(rgb, small, {kSide, kSide}, 0, 0, cv::INTER_AREA);
    rough *= 3; // most values are small

    std::vector<cv::Mat> channels;
    cv::split(small, channels);
    channels.push_back(rough);
    std::vector<std::uint8_t> input;
    input.reserve(static_cast<std::size_t>(kSide) * kSide * kChannels);
    for (const cv::Mat& channel : channels)
        input.insert(input.end(), channel.datastart, channel.dataend);
    return input;
}

} // namespace orlen
