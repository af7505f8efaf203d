#include "recognition/StatusBar.h"

#include "recognition/PictureMatrix.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

// The signs are much lighter or much darker than what is directly around them, lie on one line, and keep to
// both ends of it. Specks along the top of a photo hardly do.

namespace orlen {

namespace {

// Shares of the picture's height.
constexpr double kBarHeight = 0.045;
constexpr double kHighestSign = 0.032;
constexpr double kOffLine = 0.008;
constexpr double kBelow = 0.03; // is seen as well, for what is cut at the bar's edge
// Shares of the picture's width.
constexpr double kWidestSign = 0.16;
constexpr double kEnd = 0.36; // of the line, on either side
constexpr double kLeastTime = 0.04;
constexpr double kMostTime = 0.3;
constexpr double kLeastSigns = 0.05;
constexpr double kMostSigns = 0.34;
constexpr double kMostStrayWidth = 0.12;

constexpr double kLeastHeight = 300; // pixels: in smaller pictures the signs are specks
constexpr double kFlattest = 1.5;    // height by width
constexpr double kSteepest = 2.4;
constexpr int kSignPixels = 15; // no sign is larger
constexpr int kLeastDifference = 30;
constexpr double kMostStray = 0.6; // of the signs: other specks in the bar

struct Sign {
    cv::Rect box;
    double x = 0; ///< of the middle
    double y = 0;
};

/// What differs from its surroundings, with its middle in the bar.
std::vector<Sign> specksOf(const cv::Mat& strip, int barHeight, int polarity)
{
    const cv::Mat brush = cv::getStructuringElement(cv::MORPH_RECT, {kSignPixels, kSignPixels});
    cv::Mat difference;
    cv::morphologyEx(strip, difference, polarity, brush);
    cv::Mat labels;
    cv::Mat boxes;
    cv::Mat middles;
    const int count =
        cv::connectedComponentsWithStats(difference > kLeastDifference, labels, boxes, middles, 8);
    std::vector<Sign> specks;
    for (int i = 1; i < count; ++i) {
        const auto* box = boxes.ptr<int>(i);
        const auto* middle = middles.ptr<double>(i);
        if (box[cv::CC_STAT_AREA] >= 3 && middle[1] < barHeight)
            specks.push_back({{box[cv::CC_STAT_LEFT], box[cv::CC_STAT_TOP], box[cv::CC_STAT_WIDTH],
                               box[cv::CC_STAT_HEIGHT]},
                              middle[0],
                              middle[1]});
    }
    return specks;
}

bool isSign(const Sign& speck, cv::Size picture, int barHeight)
{
    const cv::Rect& box = speck.box;
    const bool isAtAnEnd = speck.x < kEnd * picture.width || speck.x > (1 - kEnd) * picture.width;
    return isAtAnEnd && box.y > 0 && box.br().y <= barHeight + 3 && box.height >= 3 &&
           box.height <= kHighestSign * picture.height && box.width <= kWidestSign * picture.width;
}

/// Those on one line with most others.
std::vector<Sign> onOneLine(std::vector<Sign> signs, int height)
{
    if (signs.empty())
        return signs;
    const auto middle = signs.begin() + static_cast<std::ptrdiff_t>(signs.size() / 2);
    std::nth_element(signs.begin(), middle, signs.end(),
                     [](const Sign& a, const Sign& b) { return a.y < b.y; });
    const double line = middle->y;
    const double most = std::max(2.5, kOffLine * height);
    std::erase_if(signs, [=](const Sign& sign) { return std::abs(sign.y - line) > most; });
    return signs;
}

bool isBar(const std::vector<Sign>& specks, cv::Size picture, int barHeight)
{
    std::vector<Sign> signs;
    std::copy_if(specks.begin(), specks.end(), std::back_inserter(signs),
                 [&](const Sign& speck) { return isSign(speck, picture, barHeight); });
    signs = onOneLine(std::move(signs), picture.height);
    double time = 0;
    double others = 0;
    double all = 0;
    int othersCount = 0;
    for (const Sign& sign : signs) {
        const bool isTime = sign.x < kEnd * picture.width;
        (isTime ? time : others) += static_cast<double>(sign.box.width) / picture.width;
        othersCount += isTime ? 0 : 1;
    }
    for (const Sign& speck : specks)
        all += static_cast<double>(speck.box.width) / picture.width;
    const auto stray = static_cast<double>(specks.size() - signs.size());
    return time >= kLeastTime && time < kMostTime && othersCount >= 2 && others >= kLeastSigns &&
           others < kMostSigns && all - time - others <= kMostStrayWidth &&
           stray <= kMostStray * static_cast<double>(signs.size());
}

} // namespace

bool StatusBar::isOn(const RgbImage& image)
{
    if (image.height < kLeastHeight || image.height < kFlattest * image.width ||
        image.height > kSteepest * image.width)
        return false;
    const int barHeight = static_cast<int>(std::lround(kBarHeight * image.height));
    const int seen = barHeight + static_cast<int>(std::lround(kBelow * image.height));
    cv::Mat strip;
    cv::cvtColor(matrixOf(image).rowRange(0, seen), strip, cv::COLOR_RGB2GRAY);
    for (const int polarity : {cv::MORPH_TOPHAT, cv::MORPH_BLACKHAT})
        if (isBar(specksOf(strip, barHeight, polarity), {image.width, image.height}, barHeight))
            return true;
    return false;
}

} // namespace orlen
