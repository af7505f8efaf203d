#include "recognition/LineDirection.h"

#include "recognition/PictureMatrix.h"

#include <opencv2/imgproc.hpp>

// Lines of letters leave blank space between them: where they run from left to right, the ink changes much
// from row to row and little from column to column. Seen in small tiles this holds for skewed pages, for
// several columns and for words whose letters touch.

namespace orlen {

namespace {

constexpr int kTile = 48; // pixels: a few lines
constexpr double kLeastInk = 0.04;
constexpr double kMostInk = 0.6;
// Upright pages lie under 0.72, upright screenshots under 1.05.
constexpr double kSideways = 1.25;

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
    cv::Mat grey;
    cv::Mat ink;
    cv::cvtColor(matrixOf(image), grey, cv::COLOR_RGB2GRAY);
    cv::adaptiveThreshold(grey, ink, 1, cv::ADAPTIVE_THRESH_MEAN_C, cv::THRESH_BINARY_INV, 15, 14);
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
