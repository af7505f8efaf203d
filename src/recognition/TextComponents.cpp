#include "recognition/TextComponents.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>

namespace orlen {

namespace {

// The texture of a photo has far more components than any page; further ones add no information.
constexpr std::size_t kMost = 6000;

bool areNeighbours(const cv::Rect& left, const cv::Rect& right)
{
    const int gap = right.x - (left.x + left.width);
    const int taller = std::max(left.height, right.height);
    const int lower = std::min(left.height, right.height);
    if (gap < -taller / 2 || gap > taller * 2 || taller > lower * 2)
        return false;
    const int overlap = std::min(left.y + left.height, right.y + right.height) - std::max(left.y, right.y);
    return overlap * 2 > lower;
}

} // namespace

std::vector<cv::Rect> TextComponents::find(const cv::Mat& mask, const Sizes& sizes)
{
    cv::Mat labels;
    cv::Mat stats;
    cv::Mat centres;
    const int count = cv::connectedComponentsWithStats(mask, labels, stats, centres, 8, CV_32S);
    std::vector<cv::Rect> found;
    for (int i = 1; i < count && found.size() < kMost; ++i) {
        const int* s = stats.ptr<int>(i);
        const int width = s[cv::CC_STAT_WIDTH];
        const int height = s[cv::CC_STAT_HEIGHT];
        const double fill = static_cast<double>(s[cv::CC_STAT_AREA]) / (width * height);
        if (height < sizes.least || height > sizes.most || width > height * sizes.widest ||
            height > width * 12)
            continue;
        if (fill > 0.12 && (fill < 0.97 || height > width * 2))
            found.emplace_back(s[cv::CC_STAT_LEFT], s[cv::CC_STAT_TOP], width, height);
    }
    return found;
}

std::vector<TextComponents::Line> TextComponents::lines(std::vector<cv::Rect> components)
{
    std::sort(components.begin(), components.end(),
              [](const cv::Rect& a, const cv::Rect& b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
    std::vector<Line> lines;
    // Only lines that end nearby can continue; the others are left behind as the sweep moves right.
    std::vector<std::size_t> open;
    for (const cv::Rect& component : components) {
        std::erase_if(open, [&](std::size_t i) {
            const cv::Rect& end = lines[i].back();
            return component.x - (end.x + end.width) > end.height * 4;
        });
        const auto best = std::find_if(open.begin(), open.end(), [&](std::size_t i) {
            return areNeighbours(lines[i].back(), component);
        });
        if (best != open.end()) {
            lines[*best].push_back(component);
            continue;
        }
        open.push_back(lines.size());
        lines.push_back({component});
    }
    return lines;
}

std::size_t TextComponents::pairs(const std::vector<Line>& lines)
{
    std::size_t count = 0;
    for (const Line& line : lines)
        count += line.size() - 1;
    return count;
}

} // namespace orlen
