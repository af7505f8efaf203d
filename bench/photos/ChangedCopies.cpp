#include "ChangedCopies.h"

#include "PhotoFolder.h"
#include "recognition/AreaScale.h"
#include "recognition/PictureMatrix.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>

namespace orlen {

namespace {

using ChangedCopies::Random;

double within(Random& random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

double eitherSign(Random& random, double value)
{
    return random() % 2 == 0 ? value : -value;
}

RgbImage imageOf(const cv::Mat& mat)
{
    const cv::Mat whole = mat.isContinuous() ? mat : mat.clone();
    return {
        .width = whole.cols, .height = whole.rows, .pixels = {whole.data, whole.data + whole.total() * 3}};
}

RgbImage warped(const RgbImage& image, const cv::Mat& matrix)
{
    cv::Mat result;
    cv::warpPerspective(matrixOf(image), result, matrix, {image.width, image.height}, cv::INTER_LINEAR,
                        cv::BORDER_REFLECT_101);
    return imageOf(result);
}

RgbImage halfSize(const RgbImage& image, Random& /*random*/)
{
    RgbImage result{
        .width = std::max(image.width / 2, 1), .height = std::max(image.height / 2, 1), .pixels = {}};
    for (const float value : AreaScale::scaled(image, result.width, result.height))
        result.pixels.push_back(static_cast<std::uint8_t>(std::lround(value)));
    return result;
}

RgbImage cropped(const RgbImage& image, Random& random, double share)
{
    const int width = static_cast<int>(std::lround(image.width * (1 - share)));
    const int height = static_cast<int>(std::lround(image.height * (1 - share)));
    const int left = static_cast<int>(within(random, 0, image.width - width + 0.99));
    const int top = static_cast<int>(within(random, 0, image.height - height + 0.99));
    return imageOf(matrixOf(image)(cv::Rect(left, top, width, height)).clone());
}

/// More or less light, which is added up before a picture's gamma.
RgbImage exposed(const RgbImage& image, double stops)
{
    std::array<std::uint8_t, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double value = static_cast<double>(i) / 255;
        const double linear = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        const double lit = std::min(linear * std::exp2(stops), 1.0);
        const double shown = lit <= 0.0031308 ? lit * 12.92 : 1.055 * std::pow(lit, 1 / 2.4) - 0.055;
        table[i] = static_cast<std::uint8_t>(std::lround(shown * 255));
    }
    RgbImage result = image;
    for (std::uint8_t& value : result.pixels)
        value = table[value];
    return result;
}

RgbImage warmer(const RgbImage& image, Random& /*random*/)
{
    RgbImage result = image;
    for (std::size_t i = 0; i < result.pixels.size(); i += 3) {
        result.pixels[i] = static_cast<std::uint8_t>(std::min(result.pixels[i] * 1.12, 255.0));
        result.pixels[i + 2] = static_cast<std::uint8_t>(result.pixels[i + 2] * 0.90);
    }
    return result;
}

/// Turned, and enlarged until no corner is empty.
RgbImage turned(const RgbImage& image, double degrees)
{
    const double longer = std::max(image.width, image.height);
    const double shorter = std::min(image.width, image.height);
    const double scale = 1 + std::sin(std::abs(degrees) * CV_PI / 180) * longer / shorter;
    cv::Mat matrix = cv::getRotationMatrix2D(
        {static_cast<float>(image.width - 1) / 2, static_cast<float>(image.height - 1) / 2}, degrees, scale);
    matrix.push_back(cv::Mat((cv::Mat_<double>(1, 3) << 0, 0, 1)));
    return warped(image, matrix);
}

RgbImage shifted(const RgbImage& image, Random& random)
{
    return warped(image, (cv::Mat_<double>(3, 3) << 1, 0, eitherSign(random, 0.03) * image.width, 0, 1,
                          eitherSign(random, 0.02) * image.height, 0, 0, 1));
}

/// Where each pixel of a picture that bends softly comes from, along one axis.
cv::Mat bend(const cv::Size& size, cv::RNG& noise)
{
    cv::Mat field(size, CV_32F);
    noise.fill(field, cv::RNG::NORMAL, 0, 1);
    cv::GaussianBlur(field, field, {}, std::min(size.width, size.height) / 12.0);
    double low = 0;
    double high = 0;
    cv::minMaxLoc(field, &low, &high);
    field *= 0.008 * std::max(size.width, size.height) / std::max(-low, high);
    return field;
}

/// The next frame of a hand-held camera: a little moved, bent, blurred, noisy and lit otherwise.
RgbImage burst(const RgbImage& image, Random& random)
{
    cv::RNG noise(random());
    const auto width = static_cast<float>(image.width);
    const auto height = static_cast<float>(image.height);
    const std::array<cv::Point2f, 4> corners{{{0, 0}, {width, 0}, {width, height}, {0, height}}};
    std::array<cv::Point2f, 4> moved = corners;
    const double right = within(random, -0.025, 0.025);
    const double down = within(random, -0.025, 0.025);
    for (cv::Point2f& corner : moved) {
        corner.x += static_cast<float>((right + within(random, -0.018, 0.018)) * width);
        corner.y += static_cast<float>((down + within(random, -0.018, 0.018)) * height);
    }
    cv::Mat frame = matrixOf(warped(image, cv::getPerspectiveTransform(corners.data(), moved.data())));
    cv::Mat x = bend(frame.size(), noise);
    cv::Mat y = bend(frame.size(), noise);
    for (int row = 0; row < frame.rows; ++row) {
        for (int column = 0; column < frame.cols; ++column) {
            x.at<float>(row, column) += static_cast<float>(column);
            y.at<float>(row, column) += static_cast<float>(row);
        }
    }
    cv::Mat bent;
    cv::remap(frame, bent, x, y, cv::INTER_LINEAR, cv::BORDER_REFLECT_101);
    cv::GaussianBlur(bent, bent, {}, within(random, 0.4, 0.9));
    cv::Mat grain(bent.size(), CV_16SC3);
    noise.fill(grain, cv::RNG::NORMAL, 0, 3);
    cv::add(matrixOf(exposed(imageOf(bent), within(random, -0.25, 0.25))), grain, bent, cv::noArray(), CV_8U);
    return PhotoFolder::asJpeg(imageOf(bent), 85);
}

RgbImage everything(const RgbImage& image, Random& random)
{
    const RgbImage moved = turned(cropped(burst(image, random), random, 0.03), within(random, -1, 1));
    const RgbImage lit = exposed(warmer(moved, random), within(random, -0.3, 0.3));
    return PhotoFolder::asJpeg(halfSize(lit, random), 60);
}

constexpr ChangedCopies::Change kChanges[] = {
    {"JPEG quality 40", [](const RgbImage& image, Random&) { return PhotoFolder::asJpeg(image, 40); }},
    {"half size", halfSize},
    {"crop 5 %", [](const RgbImage& image, Random& random) { return cropped(image, random, 0.05); }},
    {"crop 10 %", [](const RgbImage& image, Random& random) { return cropped(image, random, 0.10); }},
    {"crop 20 %", [](const RgbImage& image, Random& random) { return cropped(image, random, 0.20); }},
    {"exposure +0.5", [](const RgbImage& image, Random&) { return exposed(image, 0.5); }},
    {"exposure -0.5", [](const RgbImage& image, Random&) { return exposed(image, -0.5); }},
    {"white balance", warmer},
    {"turned 2 deg",
     [](const RgbImage& image, Random& random) { return turned(image, eitherSign(random, 2)); }},
    {"shift 3 x 2 %", shifted},
    {"burst-like", burst},
    {"all together", everything},
};

} // namespace

std::span<const ChangedCopies::Change> ChangedCopies::all()
{
    return kChanges;
}

} // namespace orlen
