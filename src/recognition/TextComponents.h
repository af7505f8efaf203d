#pragma once

#include <opencv2/core/mat.hpp>
#include <opencv2/core/types.hpp>

#include <cstddef>
#include <vector>

/// Connected areas of a mask that may be letters or words, and the lines they form. Pure; any thread.
namespace orlen::TextComponents {

/// Neighbours on one line, left to right.
using Line = std::vector<cv::Rect>;

/// Sizes of what may be a letter, or several that touch, in pixels.
struct Sizes {
    int least = 4;   ///< height
    int most = 60;   ///< height
    int widest = 12; ///< width as a multiple of the height
};

[[nodiscard]] std::vector<cv::Rect> find(const cv::Mat& mask, const Sizes& sizes);

/// Joins neighbouring components of similar height; a component without neighbours is a line of one.
[[nodiscard]] std::vector<Line> lines(std::vector<cv::Rect> components);

/// Number of neighbouring pairs on the lines.
[[nodiscard]] std::size_t pairs(const std::vector<Line>& lines);

} // namespace orlen::TextComponents
