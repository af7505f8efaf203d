#include "Require.h"
#include "recognition/BmpReader.h"

#include <algorithm>

/// Whatever a file holds, the small picture is whole.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int kSide = 32;
    const orlen::ByteSource source = [&](std::int64_t offset, std::span<std::uint8_t> buffer) {
        require(offset >= 0);
        const std::size_t start = std::min(size, static_cast<std::size_t>(offset));
        const std::size_t length = std::min(size - start, buffer.size());
        std::copy_n(data + start, length, buffer.data());
        return length;
    };
    const auto picture = orlen::BmpReader::read(source, {{kSide, kSide}});
    if (!picture)
        return 0;
    const orlen::RgbImage& image = picture->small;
    require(picture->width > 0 && picture->height > 0 && image.width > 0 && image.height > 0);
    require(image.width <= std::min(picture->width, kSide) &&
            image.height <= std::min(picture->height, kSide));
    require(image.pixels.size() == orlen::RgbImage::byteCount(image.width, image.height));
    return 0;
}
