#include "recognition/PicturePlanes.h"

#include <opencv2/core.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace orlen {

namespace {

constexpr int kTolerance = 14; // grey levels: what JPEG leaves of an even border beside letters

int medianOf(const cv::Mat& line)
{
    std::array<int, 256> counts{};
    for (int y = 0; y < line.rows; ++y)
        for (int x = 0; x < line.cols; ++x)
            ++counts[line.ptr(y)[x]];
    int left = static_cast<int>(line.total() / 2);
    for (std::size_t v = 0; v < counts.size(); ++v) {
        left -= counts[v];
        if (left < 0)
            return static_cast<int>(v);
    }
    return 255;
}

float shareNear(const cv::Mat& part, int level)
{
    int near = 0;
    for (int y = 0; y < part.rows; ++y)
        for (int x = 0; x < part.cols; ++x)
            near += std::abs(part.ptr(y)[x] - level) <= kTolerance ? 1 : 0;
    return static_cast<float>(near) / static_cast<float>(part.total());
}

/// A bar: rows from the top with one level at both ends and in most pixels, whatever is written on it.
struct Bar {
    float height = 0;  ///< share of the picture
    float level = 0;   ///< grey; -1 without a bar
    float written = 0; ///< share of its pixels that differ from the level
};

Bar barAtTop(const cv::Mat& grey)
{
    const int ends = std::max(1, grey.cols / 50);
    const int level = medianOf(grey.rowRange(0, std::max(1, grey.rows / 100)));
    int rows = 0;
    for (; rows < grey.rows; ++rows) {
        const cv::Mat row = grey.row(rows);
        const bool isEven = shareNear(row.colRange(0, ends), level) > 0.7F &&
                            shareNear(row.colRange(grey.cols - ends, grey.cols), level) > 0.7F;
        if (!isEven || shareNear(row, level) < 0.3F)
            break;
    }
    if (rows < 2)
        return {0, -1, 0};
    return {static_cast<float>(rows) / static_cast<float>(grey.rows), static_cast<float>(level),
            1 - shareNear(grey.rowRange(0, rows), level)};
}

/// Rows from the top that are uniform throughout.
float marginAtTop(const cv::Mat& grey)
{
    const int level = medianOf(grey.row(0));
    int rows = 0;
    while (rows < grey.rows && shareNear(grey.row(rows), level) > 0.97F)
        ++rows;
    return static_cast<float>(rows) / static_cast<float>(grey.rows);
}

} // namespace

void addBorderFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    cv::Mat upsideDown;
    cv::flip(planes.grey, upsideDown, 0);
    const cv::Mat left = planes.grey.t();
    cv::Mat right;
    cv::flip(left, right, 0);

    const Bar top = barAtTop(planes.grey);
    const Bar bottom = barAtTop(upsideDown);
    features.push_back({"top bar", top.height});
    features.push_back({"top bar level", top.level});
    features.push_back({"top bar written", top.written});
    features.push_back({"bottom bar", bottom.height});
    features.push_back({"bottom bar level", bottom.level});
    features.push_back({"bottom bar written", bottom.written});
    const std::array margins = {marginAtTop(planes.grey), marginAtTop(upsideDown), marginAtTop(left),
                                marginAtTop(right)};
    features.push_back({"top margin", margins[0]});
    features.push_back({"bottom margin", margins[1]});
    features.push_back({"least margin", *std::min_element(margins.begin(), margins.end())});
    features.push_back({"side margins", std::min(margins[2], margins[3])});
}

} // namespace orlen
