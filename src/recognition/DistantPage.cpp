#include "recognition/DistantPage.h"

#include "recognition/PictureMatrix.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <vector>

// Paper is bright in all three colours, so it is looked for in the least of them. What is brighter than the
// rest is taken as the sheet if it nearly fills a rectangle, however that is turned, and stands out from what
// is directly around it. Of 1,208 photos without a page one has such a part.

namespace orlen {

namespace {

constexpr int kSmallSide = 256; // pixels; letters vanish, the sheet stays
constexpr int kSheets = 3;      // the largest ones are looked at
constexpr double kSmallestSheet = 0.01;
constexpr double kLargestSheet = 0.35; // larger ones are read as they are
constexpr double kLeastFill = 0.8;     // of the rectangle around it
constexpr double kLeastContrast = 40;
constexpr double kSheetMargin = 0.06;

using Outline = std::vector<cv::Point>;

/// The least of the three colours, small.
cv::Mat leastColour(const RgbImage& image)
{
    const double scale = std::min(1.0, static_cast<double>(kSmallSide) / std::max(image.width, image.height));
    const cv::Size size(std::max(1, static_cast<int>(std::lround(image.width * scale))),
                        std::max(1, static_cast<int>(std::lround(image.height * scale))));
    cv::Mat small;
    cv::resize(matrixOf(image), small, size, 0, 0, cv::INTER_AREA);
    std::vector<cv::Mat> colours;
    cv::split(small, colours);
    return cv::min(cv::min(colours[0], colours[1]), colours[2]);
}

std::vector<Outline> brightSheets(const cv::Mat& grey, const cv::Mat& brush)
{
    cv::Mat bright;
    cv::threshold(grey, bright, 0, 255, cv::THRESH_BINARY | cv::THRESH_OTSU);
    cv::morphologyEx(bright, bright, cv::MORPH_CLOSE, brush);
    cv::morphologyEx(bright, bright, cv::MORPH_OPEN, brush);
    std::vector<Outline> outlines;
    cv::findContours(bright, outlines, cv::RETR_EXTERNAL, cv::CHAIN_APPROX_SIMPLE);
    std::sort(outlines.begin(), outlines.end(),
              [](const Outline& a, const Outline& b) { return cv::contourArea(a) > cv::contourArea(b); });
    outlines.resize(std::min<std::size_t>(outlines.size(), kSheets));
    return outlines;
}

bool hasShapeOfASheet(const Outline& outline, cv::Size picture)
{
    const cv::Rect box = cv::boundingRect(outline);
    const bool reachesTheEdge =
        box.x <= 1 || box.y <= 1 || box.br().x >= picture.width - 1 || box.br().y >= picture.height - 1;
    const double area = cv::contourArea(outline);
    const double share = area / picture.area();
    return !reachesTheEdge && share >= kSmallestSheet && share <= kLargestSheet &&
           area >= kLeastFill * cv::minAreaRect(outline).size.area();
}

bool standsOut(const Outline& outline, const cv::Mat& grey, const cv::Mat& brush)
{
    cv::Mat sheet = cv::Mat::zeros(grey.size(), CV_8U);
    cv::drawContours(sheet, std::vector<Outline>{outline}, 0, 255, cv::FILLED);
    cv::Mat near;
    cv::Mat around;
    cv::dilate(sheet, near, brush);
    cv::dilate(near, around, brush, cv::Point(-1, -1), 3);
    around.setTo(0, near);
    return cv::mean(grey, sheet)[0] >= cv::mean(grey, around)[0] + kLeastContrast;
}

} // namespace

std::optional<PixelRect> DistantPage::partOf(const RgbImage& image)
{
    if (image.isEmpty())
        return std::nullopt;
    const cv::Mat grey = leastColour(image);
    const cv::Mat brush = cv::getStructuringElement(cv::MORPH_RECT, {5, 5});
    for (const Outline& outline : brightSheets(grey, brush)) {
        if (!hasShapeOfASheet(outline, grey.size()) || !standsOut(outline, grey, brush))
            continue;
        const cv::Rect box = cv::boundingRect(outline);
        const double scale = static_cast<double>(image.width) / grey.cols;
        const auto scaled = [scale](double length) { return static_cast<int>(std::lround(length * scale)); };
        const PixelRect part{
            scaled(box.x - kSheetMargin * box.width), scaled(box.y - kSheetMargin * box.height),
            scaled(box.width * (1 + 2 * kSheetMargin)), scaled(box.height * (1 + 2 * kSheetMargin))};
        return part.within({image.width, image.height});
    }
    return std::nullopt;
}

} // namespace orlen
