#include "recognition/PicturePlanes.h"
#include "recognition/TextComponents.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace orlen {

namespace {

constexpr std::size_t kRealLine = 3; // components

/// The feature names of one polarity, in the order of their values.
using Names = std::array<std::string_view, 11>;
constexpr Names kDarkNames = {"dark pairs",         "dark lines",         "dark line length",
                              "dark on lines",      "dark letter height", "dark height spread",
                              "dark covered rows",  "dark line width",    "dark left aligned",
                              "dark line contrast", "dark text area"};
constexpr Names kLightNames = {"light pairs",         "light lines",         "light line length",
                               "light on lines",      "light letter height", "light height spread",
                               "light covered rows",  "light line width",    "light left aligned",
                               "light line contrast", "light text area"};

struct Heights {
    double median = 0;
    double spread = 0; ///< mean difference from the median, in medians
};

Heights heightsOf(const std::vector<TextComponents::Line>& lines)
{
    std::vector<int> heights;
    for (const auto& line : lines)
        for (const cv::Rect& r : line)
            heights.push_back(r.height);
    if (heights.empty())
        return {};
    const auto middle = heights.begin() + static_cast<std::ptrdiff_t>(heights.size() / 2);
    std::nth_element(heights.begin(), middle, heights.end());
    const double median = *middle;
    double sum = 0;
    for (int h : heights)
        sum += std::abs(h - median);
    return {median, sum / static_cast<double>(heights.size()) / median};
}

/// Share of the lines that start at the most common position.
double aligned(const std::vector<TextComponents::Line>& lines, int width)
{
    std::vector<int> starts(static_cast<std::size_t>(width / 4) + 2, 0);
    for (const auto& line : lines)
        ++starts[static_cast<std::size_t>(line.front().x / 4)];
    int most = 0;
    for (std::size_t i = 0; i + 1 < starts.size(); ++i)
        most = std::max(most, starts[i] + starts[i + 1]);
    return lines.empty() ? 0 : static_cast<double>(most) / static_cast<double>(lines.size());
}

void addLines(const cv::Mat& grey, const cv::Mat& mask, const Names& names,
              std::vector<PictureFeature>& features)
{
    const int side = std::max(grey.rows, grey.cols);
    const auto components =
        TextComponents::find(mask, {.least = 4, .most = std::max(8, side / 9), .widest = 12});
    auto lines = TextComponents::lines(components);
    const auto pairs = static_cast<double>(TextComponents::pairs(lines));
    std::erase_if(lines, [](const auto& line) { return line.size() < kRealLine; });

    double members = 0, widths = 0, area = 0, contrast = 0;
    cv::Mat covered = cv::Mat::zeros(grey.rows, 1, CV_8U);
    for (const auto& line : lines) {
        cv::Rect whole = line.front();
        for (const cv::Rect& r : line)
            whole |= r;
        members += static_cast<double>(line.size());
        widths += whole.width;
        area += whole.area();
        cv::Scalar mean;
        cv::Scalar deviation;
        cv::meanStdDev(grey(whole), mean, deviation);
        contrast += deviation[0];
        covered.rowRange(whole.y, whole.y + whole.height).setTo(255);
    }
    const double count = std::max<double>(1, static_cast<double>(lines.size()));
    const Heights heights = heightsOf(lines);
    const std::array<double, 11> values = {
        std::log1p(pairs),
        std::log1p(static_cast<double>(lines.size())),
        members / count,
        members / std::max<double>(1, static_cast<double>(components.size())),
        heights.median / side,
        heights.spread,
        static_cast<double>(cv::countNonZero(covered)) / grey.rows,
        widths / count / grey.cols,
        aligned(lines, grey.cols),
        contrast / count,
        area / static_cast<double>(grey.total()),
    };
    for (std::size_t i = 0; i < names.size(); ++i)
        features.push_back({names[i], static_cast<float>(values[i])});
}

} // namespace

void addTextFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    cv::Mat mask;
    cv::adaptiveThreshold(planes.grey, mask, 255, cv::ADAPTIVE_THRESH_MEAN_C, cv::THRESH_BINARY_INV, 15, 14);
    addLines(planes.grey, mask, kDarkNames, features);
    const cv::Mat inverse = 255 - planes.grey;
    cv::adaptiveThreshold(inverse, mask, 255, cv::ADAPTIVE_THRESH_MEAN_C, cv::THRESH_BINARY_INV, 15, 14);
    addLines(planes.grey, mask, kLightNames, features);
}

} // namespace orlen
