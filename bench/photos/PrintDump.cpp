// What training needs of each picture: reads binary PPM pictures from the standard input, one after the
// other, and writes for each the descriptor (floats) and the tile (bytes) to the standard output.

#include "recognition/AreaScale.h"
#include "recognition/FineTile.h"
#include "recognition/LayoutDescriptor.h"

#include <cstdio>
#include <iostream>
#include <string>

namespace {

using namespace orlen;

/// Nothing at the end of the input, or when it is no PPM.
RgbImage nextImage(std::istream& in)
{
    std::string kind;
    RgbImage image;
    int brightest = 0;
    if (!(in >> kind >> image.width >> image.height >> brightest) || kind != "P6" || brightest != 255)
        return {};
    in.get();
    image.pixels.resize(RgbImage::byteCount(image.width, image.height));
    in.read(reinterpret_cast<char*>(image.pixels.data()), static_cast<std::streamsize>(image.pixels.size()));
    return in ? image : RgbImage{};
}

template <typename Values>
void write(const Values& values)
{
    std::fwrite(values.data(), sizeof(values[0]), values.size(), stdout);
}

} // namespace

int main()
{
    std::ios::sync_with_stdio(false);
    for (RgbImage image = nextImage(std::cin); !image.isEmpty(); image = nextImage(std::cin)) {
        constexpr int kSide = LayoutDescriptor::kSide;
        const std::vector<float> grey = AreaScale::scaledGrey(image, kSide, kSide);
        write(LayoutDescriptor::describe(image, grey));
        write(FineTile::tileOf(grey));
    }
    return 0;
}
