#include "recognition/PicturePlanes.h"

#include <opencv2/core.hpp>

#include <algorithm>
#include <cmath>

namespace orlen {

namespace {

constexpr int kBlockSide = 8; // pixels

struct Block {
    float mean = 0;
    float deviation = 0;
    float range = 0;
    float extremes = 0; ///< share of the pixels in the outer fifths of the range
};

Block measure(const cv::Mat& grey, int left, int top)
{
    double sum = 0;
    double squares = 0;
    int least = 255;
    int most = 0;
    for (int y = top; y < top + kBlockSide; ++y)
        for (int x = left; x < left + kBlockSide; ++x) {
            const int v = grey.ptr(y)[x];
            sum += v;
            squares += v * v;
            least = std::min(least, v);
            most = std::max(most, v);
        }
    const double count = kBlockSide * kBlockSide;
    const double mean = sum / count;
    int outer = 0;
    const int fifth = (most - least) / 5;
    for (int y = top; y < top + kBlockSide; ++y)
        for (int x = left; x < left + kBlockSide; ++x) {
            const int v = grey.ptr(y)[x];
            outer += v <= least + fifth || v >= most - fifth ? 1 : 0;
        }
    return {static_cast<float>(mean),
            static_cast<float>(std::sqrt(std::max(0.0, squares / count - mean * mean))),
            static_cast<float>(most - least), static_cast<float>(outer / count)};
}

float quantile(std::vector<float>& values, double share)
{
    const auto at = static_cast<std::ptrdiff_t>(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), values.begin() + at, values.end());
    return values[static_cast<std::size_t>(at)];
}

/// Share of the rows or columns of a mask in which at least nine in ten blocks are set.
float fullLines(const cv::Mat& mask, bool rows)
{
    cv::Mat sums;
    cv::reduce(mask, sums, rows ? 1 : 0, cv::REDUCE_SUM, CV_32S);
    const int across = rows ? mask.cols : mask.rows;
    return static_cast<float>(cv::countNonZero(sums >= 255 * 0.9 * across)) /
           static_cast<float>(sums.total());
}

} // namespace

void addBlockFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    const int columns = planes.grey.cols / kBlockSide;
    const int rows = planes.grey.rows / kBlockSide;
    cv::Mat flat(rows, columns, CV_8U);
    std::vector<Block> blocks;
    std::vector<float> deviations;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            blocks.push_back(measure(planes.grey, column * kBlockSide, row * kBlockSide));
            deviations.push_back(blocks.back().deviation);
            flat.ptr(row)[column] = blocks.back().deviation < 2.5F ? 255 : 0;
        }
    const auto share = [&](auto&& holds) {
        const auto n = std::count_if(blocks.begin(), blocks.end(), holds);
        return static_cast<float>(n) / static_cast<float>(blocks.size());
    };
    features.push_back({"flat 1", share([](const Block& b) { return b.deviation < 1; })});
    features.push_back({"flat 2", share([](const Block& b) { return b.deviation < 2; })});
    features.push_back({"flat 4", share([](const Block& b) { return b.deviation < 4; })});
    features.push_back({"soft", share([](const Block& b) { return b.deviation >= 2 && b.deviation < 12; })});
    features.push_back({"rough 20", share([](const Block& b) { return b.deviation > 20; })});
    features.push_back({"rough 45", share([](const Block& b) { return b.deviation > 45; })});
    features.push_back({"flat white", share([](const Block& b) { return b.deviation < 3 && b.mean > 240; })});
    features.push_back({"flat dark", share([](const Block& b) { return b.deviation < 3 && b.mean < 60; })});
    features.push_back({"flat between", share([](const Block& b) {
                            return b.deviation < 3 && b.mean >= 60 && b.mean <= 225;
                        })});
    features.push_back(
        {"two-toned", share([](const Block& b) { return b.range > 70 && b.extremes > 0.7F; })});
    features.push_back(
        {"many-toned", share([](const Block& b) { return b.range > 40 && b.extremes < 0.5F; })});
    features.push_back({"flat rows", fullLines(flat, true)});
    features.push_back({"flat columns", fullLines(flat, false)});
    features.push_back({"deviation 10", quantile(deviations, 0.1)});
    features.push_back({"deviation 25", quantile(deviations, 0.25)});
    features.push_back({"deviation 50", quantile(deviations, 0.5)});
    features.push_back({"deviation 75", quantile(deviations, 0.75)});
    features.push_back({"deviation 90", quantile(deviations, 0.9)});
}

} // namespace orlen
