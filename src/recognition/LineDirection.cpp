#include "recognition/LineDirection.h"

#include "recognition/PictureMatrix.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdint>
#include <vector>

// Lines of letters leave blank space between them: where they run from left to right, the ink changes much
// from row to row and little from column to column. Seen in small tiles this holds for skewed pages, for
// several columns and for words whose letters touch. The edge of a sheet or of a table is left out: it runs
// along the lines as often as across them.

namespace orlen {

namespace {

constexpr int kTile = 48; // pixels: a few lines
constexpr double kLeastInk = 0.04;
constexpr double kMostInk = 0.6;
constexpr int kLongestInk = 96; // pixels; no word is longer
// Upright pages lie under 1.1; of 60 screenshots one lies above.
constexpr double kSideways = 1.25;

/// One for ink, as far as it may be letters, else zero.
cv::Mat inkOf(const RgbImage& image)
{
    cv::Mat grey;
    cv::Mat ink;
    cv::cvtColor(matrixOf(image), grey, cv::COLOR_RGB2GRAY);
    cv::adaptiveThreshold(grey, ink, 1, cv::ADAPTIVE_THRESH_MEAN_C, cv::THRESH_BINARY_INV, 15, 14);
    cv::Mat labels;
    cv::Mat boxes;
    cv::Mat middles;
    const int count = cv::connectedComponentsWithStats(ink, labels, boxes, middles, 8);
    std::vector<std::uint8_t> isInk(static_cast<std::size_t>(count), 0);
    for (int i = 1; i < count; ++i) {
        const auto* box = boxes.ptr<int>(i);
        if (std::max(box[cv::CC_STAT_WIDTH], box[cv::CC_STAT_HEIGHT]) <= kLongestInk)
            isInk[static_cast<std::size_t>(i)] = 1;
    }
    for (int y = 0; y < ink.rows; ++y)
        std::transform(labels.ptr<int>(y), labels.ptr<int>(y) + ink.cols, ink.ptr(y),
                       [&isInk](int label) { return isInk[static_cast<std::size_t>(label)]; });
    return ink;
}

double varianceOf(const cv::Mat& sums)
{
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(sums, mean, deviation);
    return deviation[0] * deviation[0];
}

} // namespace

bool LineDirection::isSideways(const RgbImage& image)
{
    if (image.width < kTile || image.height < kTile)
        return false;
    const cv::Mat ink = inkOf(image);
    double acrossRows = 0;
    double acrossColumns = 0;
    for (int y = 0; y + kTile <= ink.rows; y += kTile)
        for (int x = 0; x + kTile <= ink.cols; x += kTile) {
            const cv::Mat tile = ink(cv::Rect(x, y, kTile, kTile));
            const double share = cv::countNonZero(tile) / static_cast<double>(kTile * kTile);
            if (share < kLeastInk || share > kMostInk)
                continue;
            cv::Mat sums;
            cv::reduce(tile, sums, 1, cv::REDUCE_SUM, CV_32S);
            acrossRows += varianceOf(sums);
            cv::reduce(tile, sums, 0, cv::REDUCE_SUM, CV_32S);
            acrossColumns += varianceOf(sums);
        }
    return acrossColumns > acrossRows * kSideways;
}

RgbImage LineDirection::turned(const RgbImage& image)
{
    RgbImage result{.width = image.height, .height = image.width, .pixels = {}};
    if (image.isEmpty())
        return result;
    cv::Mat turned;
    cv::rotate(matrixOf(image), turned, cv::ROTATE_90_CLOCKWISE);
    result.pixels.assign(turned.datastart, turned.dataend);
    return result;
}

} // namespace orlen
