#include "recognition/PicturePlanes.h"

#include <opencv2/core.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace orlen {

namespace {

constexpr int kBins = 16 * 16 * 16;

std::size_t binOf(const cv::Vec3b& pixel)
{
    const int bin = (pixel[0] >> 4) * 256 + (pixel[1] >> 4) * 16 + (pixel[2] >> 4);
    return static_cast<std::size_t>(bin);
}

/// The number of colours, and how much of the picture the most common ones cover.
void addColours(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    std::vector<int> counts(kBins, 0);
    std::vector<cv::Vec3d> sums(kBins, cv::Vec3d());
    for (int y = 0; y < planes.rgb.rows; ++y) {
        const auto* pixel = planes.rgb.ptr<cv::Vec3b>(y);
        for (int x = 0; x < planes.rgb.cols; ++x) {
            const std::size_t bin = binOf(pixel[x]);
            ++counts[bin];
            sums[bin] += cv::Vec3d(pixel[x][0], pixel[x][1], pixel[x][2]);
        }
    }
    const auto total = static_cast<double>(planes.rgb.total());
    const auto common = std::count_if(counts.begin(), counts.end(), [&](int n) { return n > total * 0.001; });
    const auto top =
        static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin());
    const cv::Vec3d mean = sums[top] / static_cast<double>(counts[top]);
    const auto centre = [&](int c) { return std::clamp(mean[c], 6.0, 249.0); };
    cv::Mat close;
    cv::inRange(planes.rgb, cv::Scalar(centre(0) - 6, centre(1) - 6, centre(2) - 6),
                cv::Scalar(centre(0) + 6, centre(1) + 6, centre(2) + 6), close);

    std::sort(counts.begin(), counts.end(), std::greater<>());
    const auto share = [&](std::size_t bins) {
        double sum = 0;
        for (std::size_t i = 0; i < bins; ++i)
            sum += counts[i];
        return static_cast<float>(sum / total);
    };
    features.push_back({"common colours", static_cast<float>(common)});
    features.push_back({"first colour", share(1)});
    features.push_back({"first colour closely", static_cast<float>(cv::countNonZero(close) / total)});
    features.push_back({"two colours", share(2)});
    features.push_back({"four colours", share(4)});
    features.push_back({"16 colours", share(16)});
    features.push_back({"64 colours", share(64)});
}

void addGreys(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    std::array<double, 256> shares{};
    for (int y = 0; y < planes.grey.rows; ++y)
        for (int x = 0; x < planes.grey.cols; ++x)
            shares[planes.grey.ptr(y)[x]] += 1.0 / static_cast<double>(planes.grey.total());
    const auto between = [&](std::size_t first, std::size_t last) {
        double sum = 0;
        for (std::size_t v = first; v <= last; ++v)
            sum += shares[v];
        return sum;
    };
    double entropy = 0;
    double peak = 0;
    int filled = 0;
    for (std::size_t first = 0; first < 256; first += 4) {
        const double part = between(first, first + 3);
        entropy -= part > 0 ? part * std::log2(part) : 0;
        peak = std::max(peak, part);
        filled += part > 0.004 ? 1 : 0;
    }
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(planes.grey, mean, deviation);
    features.push_back({"white", static_cast<float>(between(246, 255))});
    features.push_back({"bright", static_cast<float>(between(215, 255))});
    features.push_back({"dark", static_cast<float>(between(0, 45))});
    features.push_back({"black", static_cast<float>(between(0, 12))});
    features.push_back({"middle greys", static_cast<float>(between(70, 190))});
    features.push_back({"grey entropy", static_cast<float>(entropy)});
    features.push_back({"grey peak", static_cast<float>(peak)});
    features.push_back({"grey levels", static_cast<float>(filled)});
    features.push_back({"grey mean", static_cast<float>(mean[0])});
    features.push_back({"grey deviation", static_cast<float>(deviation[0])});
}

/// Hues of coloured pixels in twelve sectors, by their largest and smallest channels.
float huesOf(const PicturePlanes& planes)
{
    std::array<int, 12> sectors{};
    int coloured = 0;
    for (int y = 0; y < planes.rgb.rows; ++y) {
        const auto* pixel = planes.rgb.ptr<cv::Vec3b>(y);
        for (int x = 0; x < planes.rgb.cols; ++x) {
            const int range = planes.chroma.ptr(y)[x];
            if (range < 40)
                continue;
            const int r = pixel[x][0], g = pixel[x][1], b = pixel[x][2];
            const int most = std::max({r, g, b});
            double hue = most == r   ? 6.0 + static_cast<double>(g - b) / range
                         : most == g ? 2.0 + static_cast<double>(b - r) / range
                                     : 4.0 + static_cast<double>(r - g) / range;
            hue = std::fmod(hue, 6.0);
            ++sectors[static_cast<std::size_t>(std::clamp(static_cast<int>(hue * 2), 0, 11))];
            ++coloured;
        }
    }
    double entropy = 0;
    for (int n : sectors) {
        const double share = coloured > 0 ? static_cast<double>(n) / coloured : 0;
        entropy -= share > 0 ? share * std::log2(share) : 0;
    }
    return static_cast<float>(entropy);
}

void addChroma(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    const auto total = static_cast<double>(planes.rgb.total());
    const auto share = [&](const cv::Mat& mask) {
        return static_cast<float>(cv::countNonZero(mask) / total);
    };
    const cv::Mat bright = planes.grey > 190;
    const cv::Scalar paper = cv::mean(planes.rgb, bright);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(planes.chroma, mean, deviation);
    features.push_back({"chroma mean", static_cast<float>(mean[0])});
    features.push_back({"chroma deviation", static_cast<float>(deviation[0])});
    features.push_back({"colourless", share(planes.chroma < 9)});
    features.push_back({"coloured", share(planes.chroma > 40)});
    features.push_back({"strongly coloured", share(planes.chroma > 120)});
    features.push_back({"paper yellow", static_cast<float>(paper[0] - paper[2])});
    features.push_back({"paper chroma", static_cast<float>(cv::mean(planes.chroma, bright)[0])});
    features.push_back({"dark chroma", static_cast<float>(cv::mean(planes.chroma, planes.grey < 90)[0])});
    features.push_back({"hues", huesOf(planes)});
}

} // namespace

void addToneFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    addColours(planes, features);
    addGreys(planes, features);
    addChroma(planes, features);
}

} // namespace orlen
