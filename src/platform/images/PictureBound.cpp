#include "platform/images/PictureBound.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace orlen {

namespace {

int share(int length, int of, int all)
{
    return std::max(1, static_cast<int>(std::lround(static_cast<double>(length) * of / all)));
}

/// Whether one has a wider aspect ratio than the other.
bool isWider(PixelSize one, PixelSize other)
{
    return static_cast<double>(one.width) * other.height > static_cast<double>(other.width) * one.height;
}

} // namespace

PixelRect PixelRect::within(PixelSize picture) const
{
    const auto end = [](int start, int length, int most) {
        return static_cast<int>(std::clamp<std::int64_t>(std::int64_t{start} + length, 0, most));
    };
    const int left = std::clamp(x, 0, picture.width);
    const int top = std::clamp(y, 0, picture.height);
    return {left, top, end(x, width, picture.width) - left, end(y, height, picture.height) - top};
}

PixelSize PictureBound::box(PixelSize picture) const
{
    if (fit == Fit::inside)
        return size;
    PixelSize covering = size;
    if (isWider(picture, size))
        covering.width = share(picture.width, size.height, picture.height);
    else
        covering.height = share(picture.height, size.width, picture.width);
    return {std::min(covering.width, picture.width), std::min(covering.height, picture.height)};
}

PixelSize PictureBound::shown(PixelSize shrunk) const
{
    if (fit == Fit::inside)
        return shrunk;
    if (isWider(shrunk, size))
        return {std::min(shrunk.width, share(size.width, shrunk.height, size.height)), shrunk.height};
    return {shrunk.width, std::min(shrunk.height, share(size.height, shrunk.width, size.width))};
}

} // namespace orlen
