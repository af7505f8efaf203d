#include "platform/images/PictureBound.h"

#include <algorithm>
#include <cmath>

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
