#include "recognition/BmpHeader.h"

#include "recognition/ImageLimits.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace orlen {

namespace {

constexpr std::int64_t kFileHeader = 14; ///< bytes, before the picture's own header
constexpr std::uint32_t kCoreHeader = 12;
constexpr std::uint32_t kPlainHeader = 40;
constexpr std::uint32_t kLongestHeader = 124;
constexpr std::uint32_t kRareHeader = 64; ///< whose compressions have other meanings

enum Compression : std::uint32_t { none = 0, runLength8 = 1, masks = 3, masksWithAlpha = 6 };

/// Little-endian numbers in a block of bytes; 0 past its end.
class Fields {
public:
    explicit Fields(std::vector<std::uint8_t> bytes) : m_bytes(std::move(bytes)) {}

    [[nodiscard]] std::uint32_t u8(std::size_t at) const { return at < m_bytes.size() ? m_bytes[at] : 0U; }
    [[nodiscard]] std::uint32_t u16(std::size_t at) const { return u8(at) | u8(at + 1) << 8U; }
    [[nodiscard]] std::uint32_t u32(std::size_t at) const { return u16(at) | u16(at + 2) << 16U; }
    [[nodiscard]] std::int64_t i32(std::size_t at) const { return static_cast<std::int32_t>(u32(at)); }
    [[nodiscard]] std::size_t size() const { return m_bytes.size(); }

private:
    std::vector<std::uint8_t> m_bytes;
};

Fields fieldsAt(const ByteSource& source, std::int64_t offset, std::size_t length)
{
    std::vector<std::uint8_t> bytes(length);
    bytes.resize(source(offset, bytes));
    return Fields(std::move(bytes));
}

bool isReadable(std::uint32_t compression, int bits, BmpHeader::Rows rows)
{
    switch (compression) {
    case none:
        return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
    case runLength8:
        return bits == 8 && rows == BmpHeader::Rows::bottomUp;
    case masks:
    case masksWithAlpha:
        return bits == 16 || bits == 32;
    default:
        return false;
    }
}

std::array<BmpHeader::Channel, 4> channels(const Fields& fields, std::uint32_t size,
                                           std::uint32_t compression, int bits)
{
    if (compression == none) {
        if (bits == 16)
            return {{{0x7C00}, {0x3E0}, {0x1F}, {0}}};
        return {{{0xFF0000}, {0xFF00}, {0xFF}, {0}}};
    }
    constexpr std::size_t kMasks = 54;
    constexpr std::uint32_t kHeaderWithAlpha = 56;
    const bool hasAlpha = compression == masksWithAlpha || size >= kHeaderWithAlpha;
    return {{{fields.u32(kMasks)},
             {fields.u32(kMasks + 4)},
             {fields.u32(kMasks + 8)},
             {hasAlpha ? fields.u32(kMasks + 12) : 0}}};
}

std::int64_t paletteOffset(std::uint32_t size, std::uint32_t compression)
{
    std::int64_t offset = kFileHeader + size;
    if (size == kPlainHeader && compression == masks)
        offset += 12;
    if (size == kPlainHeader && compression == masksWithAlpha)
        offset += 16;
    return offset;
}

void readPalette(BmpHeader& header, const ByteSource& source, std::int64_t offset, std::uint32_t used,
                 std::size_t entryLength)
{
    if (header.bits > 8)
        return;
    const std::size_t most = std::size_t{1} << static_cast<unsigned>(header.bits);
    const std::size_t count = used == 0 ? most : std::min<std::size_t>(used, most);
    const Fields entries = fieldsAt(source, offset, count * entryLength);
    for (std::size_t i = 0; i < count; ++i) {
        for (std::size_t channel = 0; channel < 3; ++channel)
            header.palette[i][channel] = static_cast<std::uint8_t>(entries.u8(i * entryLength + 2 - channel));
    }
}

/// The oldest form: short numbers, no compression.
std::optional<BmpHeader> readCore(const Fields& fields, const ByteSource& source)
{
    BmpHeader header;
    header.width = static_cast<int>(fields.u16(18));
    header.height = static_cast<int>(fields.u16(20));
    header.bits = static_cast<int>(fields.u16(24));
    header.pixelOffset = fields.u32(10);
    if (!ImageLimits::allow(header.width, header.height) || !isReadable(none, header.bits, header.rows) ||
        header.bits == 16 || header.bits == 32)
        return std::nullopt;
    readPalette(header, source, kFileHeader + kCoreHeader, 0, 3);
    return header;
}

std::optional<BmpHeader> readPlain(const Fields& fields, std::uint32_t size, const ByteSource& source)
{
    const std::int64_t width = fields.i32(18);
    const std::int64_t height = fields.i32(22);
    const std::uint32_t compression = fields.u32(30);
    if (!ImageLimits::allow(width, std::abs(height)))
        return std::nullopt;
    BmpHeader header;
    header.width = static_cast<int>(width);
    header.height = static_cast<int>(std::abs(height));
    header.rows = height < 0 ? BmpHeader::Rows::topDown : BmpHeader::Rows::bottomUp;
    header.bits = static_cast<int>(fields.u16(28));
    header.isRunLength = compression == runLength8;
    header.pixelOffset = fields.u32(10);
    if (!isReadable(compression, header.bits, header.rows) ||
        (size == kRareHeader && compression > runLength8))
        return std::nullopt;
    header.channels = channels(fields, size, compression, header.bits);
    readPalette(header, source, paletteOffset(size, compression), fields.u32(46), 4);
    return header;
}

} // namespace

std::uint8_t BmpHeader::Channel::of(std::uint32_t pixel) const
{
    if (mask == 0)
        return 0;
    const auto shift = static_cast<unsigned>(std::countr_zero(mask));
    const std::uint64_t most = mask >> shift;
    const std::uint64_t value = (pixel & mask) >> shift;
    return static_cast<std::uint8_t>((value * 255 + most / 2) / most);
}

std::optional<BmpHeader> BmpHeader::read(const ByteSource& source)
{
    const Fields fields = fieldsAt(source, 0, kFileHeader + kLongestHeader);
    const std::uint32_t size = fields.u32(14);
    if (fields.u8(0) != 'B' || fields.u8(1) != 'M' || fields.size() < std::size_t{kFileHeader} + size)
        return std::nullopt;
    if (size == kCoreHeader)
        return readCore(fields, source);
    if (size < kPlainHeader || size > kLongestHeader)
        return std::nullopt;
    return readPlain(fields, size, source);
}

} // namespace orlen
