#include "recognition/PicturePlanes.h"
#include "recognition/TextComponents.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace orlen {

namespace {

using TextComponents::Line;

enum class Ground {
    outline, ///< an outline of the opposite colour close around each letter, over anything
    bar,     ///< a plain area far around each letter
};

/// Share of the pixels within a distance of a letter that differ much from its brightness.
double opposed(const cv::Mat& opposite, const cv::Mat& letters, const cv::Rect& letter, int reach)
{
    const cv::Rect all(0, 0, opposite.cols, opposite.rows);
    const cv::Rect around =
        cv::Rect(letter.x - reach, letter.y - reach, letter.width + 2 * reach, letter.height + 2 * reach) &
        all;
    const cv::Mat own = letters(around);
    cv::Mat grown;
    const int size = 2 * reach + 1;
    cv::dilate(own, grown, cv::getStructuringElement(cv::MORPH_ELLIPSE, {size, size}));
    cv::Mat rim = grown & ~own;
    const int count = cv::countNonZero(rim);
    return count > 0 ? static_cast<double>(cv::countNonZero(rim & opposite(around))) / count : 0;
}

/// Large letters of one brightness on an opposite background, on lines.
std::vector<Line> captionLines(const cv::Mat& letters, const cv::Mat& opposite, Ground ground)
{
    const int side = std::max(letters.rows, letters.cols);
    auto found = TextComponents::find(
        letters, {.least = std::max(6, side / 60), .most = std::max(12, side / 5), .widest = 6});
    std::erase_if(found, [&](const cv::Rect& r) {
        const int reach = ground == Ground::outline ? std::max(1, r.height / 14) : std::max(4, r.height / 3);
        return opposed(opposite, letters, r, reach) < (ground == Ground::outline ? 0.62 : 0.6);
    });
    auto lines = TextComponents::lines(std::move(found));
    std::erase_if(lines, [](const Line& line) { return line.size() < 3; });
    return lines;
}

struct Names {
    std::string_view letters, height, width, edge;
};

void addCaption(const std::vector<Line>& lines, const cv::Size& size, const Names& names,
                std::vector<PictureFeature>& features)
{
    double letters = 0, height = 0, widest = 0, edge = 1;
    for (const Line& line : lines) {
        cv::Rect whole = line.front();
        for (const cv::Rect& r : line)
            whole |= r;
        letters += static_cast<double>(line.size());
        height = std::max(height, static_cast<double>(whole.height) / size.height);
        widest = std::max(widest, static_cast<double>(whole.width) / size.width);
        const int toEdge = std::min(whole.y, size.height - whole.y - whole.height);
        edge = std::min(edge, static_cast<double>(toEdge) / size.height);
    }
    features.push_back({names.letters, static_cast<float>(std::log1p(letters))});
    features.push_back({names.height, static_cast<float>(height)});
    features.push_back({names.width, static_cast<float>(widest)});
    features.push_back({names.edge, static_cast<float>(edge)});
}

/// How much of the picture outside flat areas has the texture of a photo or painting.
float pictured(const PicturePlanes& planes)
{
    cv::Mat small;
    cv::Mat smooth;
    cv::resize(planes.grey, small, {64, 64}, 0, 0, cv::INTER_AREA);
    cv::blur(small, smooth, {3, 3});
    const cv::Mat difference = cv::abs(small - smooth) + cv::abs(smooth - small);
    return static_cast<float>(cv::countNonZero((difference > 2) & (small > 25) & (small < 230))) /
           (64.0F * 64.0F);
}

} // namespace

void addCaptionFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    const cv::Mat white = (planes.grey > 205) & (planes.chroma < 60);
    const cv::Mat bright = planes.grey > 175;
    const cv::Mat black = planes.grey < 55;
    const cv::Mat dark = planes.grey < 85;
    const cv::Size size = planes.grey.size();
    addCaption(captionLines(bright, dark, Ground::outline), size,
               {"outlined letters", "outlined height", "outlined width", "outlined edge"}, features);
    addCaption(captionLines(black, white, Ground::bar), size,
               {"letters on white", "height on white", "width on white", "edge on white"}, features);
    addCaption(captionLines(white, black, Ground::bar), size,
               {"letters on black", "height on black", "width on black", "edge on black"}, features);
    features.push_back({"pictured", pictured(planes)});
}

} // namespace orlen
