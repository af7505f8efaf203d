#include "recognition/PicturePlanes.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace orlen {

namespace {

constexpr std::size_t kSectors = 12;
constexpr int kEdge = 60; // Sobel units
constexpr int kStrong = 240;
constexpr int kLine = 40;

/// Opposite directions are the same.
std::size_t directionOf(double gx, double gy)
{
    double angle = std::atan2(gy, gx) + std::numbers::pi;
    while (angle >= std::numbers::pi)
        angle -= std::numbers::pi;
    return static_cast<std::size_t>(angle / std::numbers::pi * kSectors) % kSectors;
}

/// Strength and direction of edges, weighted by strength.
void addDirections(const cv::Mat& dx, const cv::Mat& dy, std::vector<PictureFeature>& features)
{
    std::array<double, kSectors> directions{};
    double edges = 0, strong = 0, weight = 0, level = 0, total = 0, squares = 0;
    for (int y = 0; y < dx.rows; ++y)
        for (int x = 0; x < dx.cols; ++x) {
            const double gx = dx.ptr<short>(y)[x];
            const double gy = dy.ptr<short>(y)[x];
            const double size = std::sqrt(gx * gx + gy * gy); // far from where hypot would be needed
            total += size;
            squares += size * size;
            if (size < kEdge)
                continue;
            ++edges;
            strong += size > kStrong ? 1 : 0;
            const std::size_t direction = directionOf(gx, gy);
            directions[direction] += size;
            weight += size;
            level += std::min(std::abs(gx), std::abs(gy)) < 0.06 * size ? size : 0;
        }
    double entropy = 0;
    for (double d : directions) {
        const double share = weight > 0 ? d / weight : 0;
        entropy -= share > 0 ? share * std::log2(share) : 0;
    }
    const auto count = static_cast<double>(dx.total());
    const double mean = total / count;
    features.push_back({"edges", static_cast<float>(edges / count)});
    features.push_back({"strong edges", static_cast<float>(strong / count)});
    features.push_back({"strong of edges", static_cast<float>(strong / std::max(1.0, edges))});
    features.push_back({"level edges", static_cast<float>(level / std::max(1.0, weight))});
    features.push_back({"direction entropy", static_cast<float>(entropy)});
    features.push_back({"edge mean", static_cast<float>(mean)});
    features.push_back({"edge peakedness", static_cast<float>(squares / count / std::max(1.0, mean * mean))});
}

struct Lines {
    float longest = 0; ///< share of the side
    float many = 0;    ///< lines over a third of the side, per 100 pixels across
};

/// Straight lines along rows, from the derivative across them.
Lines linesAlongRows(const cv::Mat& derivative)
{
    Lines lines;
    int longOnes = 0;
    for (int y = 0; y < derivative.rows; ++y) {
        const auto* value = derivative.ptr<short>(y);
        int run = 0;
        int best = 0;
        int gap = 0;
        for (int x = 0; x < derivative.cols; ++x) {
            const bool isSet = std::abs(value[x]) > kLine;
            gap = isSet ? 0 : gap + 1;
            run = gap > 2 ? 0 : run + 1;
            best = std::max(best, run);
        }
        lines.longest =
            std::max(lines.longest, static_cast<float>(best) / static_cast<float>(derivative.cols));
        longOnes += best * 3 > derivative.cols ? 1 : 0;
    }
    lines.many = 100.0F * static_cast<float>(longOnes) / static_cast<float>(derivative.rows);
    return lines;
}

} // namespace

void addEdgeFeatures(const PicturePlanes& planes, std::vector<PictureFeature>& features)
{
    cv::Mat dx;
    cv::Mat dy;
    cv::Mat laplacian;
    cv::Sobel(planes.grey, dx, CV_16S, 1, 0);
    cv::Sobel(planes.grey, dy, CV_16S, 0, 1);
    cv::Laplacian(planes.grey, laplacian, CV_16S);
    addDirections(dx, dy, features);

    const cv::Mat sideways = dx.t();
    const Lines rows = linesAlongRows(dy);
    const Lines columns = linesAlongRows(sideways);
    cv::Scalar mean;
    cv::Scalar deviation;
    cv::meanStdDev(laplacian, mean, deviation);
    features.push_back({"longest row line", rows.longest});
    features.push_back({"row lines", rows.many});
    features.push_back({"longest column line", columns.longest});
    features.push_back({"column lines", columns.many});
    features.push_back({"fine detail", static_cast<float>(std::log(1 + deviation[0]))});
}

} // namespace orlen
