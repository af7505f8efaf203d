#pragma once

#include <opencv2/core/mat.hpp>
#include <opencv2/core/types.hpp>

#include <cstddef>
#include <vector>

/// Connected areas of a mask that may be letters or words, and the lines they stand on. Pure; any thread.
namespace orlen::TextComponents {

/// Neighbours on a common line, from left to right.
using Line = std::vector<cv::Rect>;

/// Limits of what may be a letter, or several that touch, in pixels.
struct Sizes {
    int least = 4;   ///< height
    int most = 60;   ///< height
    int widest = 12; ///< width in heights
};

[[nodiscard]] std::vector<cv::Rect> find(const cv::Mat& mask, const Sizes& sizes);

/// Joins components of like height beside each other; those that stand alone make lines of one.
[[nodiscard]] std::vector<Line> lines(std::vector<cv::Rect> components);

/// Neighbouring pairs on common lines.
[[nodiscard]] std::size_t pairs(const std::vector<Line>& lines);

} // namespace orlen::TextComponents
