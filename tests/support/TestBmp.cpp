#include "support/TestBmp.h"

namespace orlen {

namespace {

constexpr int kSquare = 8; ///< pixels

std::string little(std::uint32_t number)
{
    std::string bytes;
    for (const unsigned shift : {0U, 8U, 16U, 24U})
        bytes += static_cast<char>(number >> shift & 0xFFU);
    return bytes;
}

std::uint32_t mixed(std::uint32_t number)
{
    number = (number ^ number >> 16U) * 0x7FEB352DU;
    number = (number ^ number >> 15U) * 0x846CA68BU;
    return number ^ number >> 16U;
}

} // namespace

std::string testBmp(int width, int height, std::uint32_t seed)
{
    // Four bytes a pixel, so that rows need no filling up.
    std::string bytes =
        "BM" + little(0) + little(0) + little(54) + little(40) + little(static_cast<std::uint32_t>(width)) +
        little(static_cast<std::uint32_t>(height)) + little(1U | 32U << 16U) + std::string(24, '\0');
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto square = static_cast<std::uint32_t>(y / kSquare * 1000 + x / kSquare);
            bytes += little(mixed(square + (seed << 20U)));
        }
    }
    return bytes;
}

} // namespace orlen
