#include "recognition/PictureMatrix.h"

#include <algorithm>

namespace orlen {

cv::Mat matrixOf(const RgbImage& image)
{
    if (image.isEmpty())
        return {};
    cv::Mat matrix(image.height, image.width, CV_8UC3);
    // A new matrix has no padding either.
    std::copy_n(image.pixels.begin(), RgbImage::byteCount(image.width, image.height), matrix.data);
    return matrix;
}

} // namespace orlen
