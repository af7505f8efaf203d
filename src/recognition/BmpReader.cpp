#include "recognition/BmpReader.h"

#include "recognition/ImageLimits.h"
#include "recognition/RowShrinker.h"

#include <algorithm>
#include <vector>

namespace orlen::BmpReader {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr unsigned kOpaque = 255;
constexpr unsigned kWhite = 255;

std::uint8_t overWhite(std::uint8_t value, std::uint8_t alpha)
{
    return static_cast<std::uint8_t>((value * alpha + kWhite * (kOpaque - alpha) + kOpaque / 2) / kOpaque);
}

/// Converts the encoded rows of a picture to colours, in the file's order.
class Rows {
public:
    Rows(const BmpHeader& header, RowShrinker& shrinker)
        : m_header(header), m_shrinker(shrinker), m_colours(static_cast<std::size_t>(header.width) * 3)
    {
    }

    [[nodiscard]] int added() const { return m_added; }
    [[nodiscard]] bool isComplete() const { return m_added == m_header.height; }

    /// A row of `stride` bytes.
    void add(const Bytes& row)
    {
        for (std::size_t x = 0; x < width(); ++x)
            put(x, colour(row, x));
        handOn();
    }

    /// A row of one palette index per pixel.
    void addIndexed(const Bytes& row)
    {
        for (std::size_t x = 0; x < width(); ++x)
            put(x, m_header.palette[row[x]]);
        handOn();
    }

private:
    [[nodiscard]] std::size_t width() const { return static_cast<std::size_t>(m_header.width); }

    void put(std::size_t x, const BmpHeader::Colour& colour)
    {
        std::copy(colour.begin(), colour.end(), m_colours.begin() + static_cast<std::ptrdiff_t>(x * 3));
    }

    [[nodiscard]] BmpHeader::Colour colour(const Bytes& row, std::size_t x) const
    {
        switch (m_header.bits) {
        case 1:
            return m_header.palette[row[x / 8] >> (7 - x % 8) & 1U];
        case 4:
            return m_header.palette[row[x / 2] >> (x % 2 == 0 ? 4U : 0U) & 15U];
        case 8:
            return m_header.palette[row[x]];
        case 16:
            return masked(row[x * 2] | static_cast<std::uint32_t>(row[x * 2 + 1]) << 8U);
        case 24:
            return {row[x * 3 + 2], row[x * 3 + 1], row[x * 3]};
        default:
            return masked(row[x * 4] | static_cast<std::uint32_t>(row[x * 4 + 1]) << 8U |
                          static_cast<std::uint32_t>(row[x * 4 + 2]) << 16U |
                          static_cast<std::uint32_t>(row[x * 4 + 3]) << 24U);
        }
    }

    [[nodiscard]] BmpHeader::Colour masked(std::uint32_t pixel) const
    {
        const auto& [red, green, blue, alpha] = m_header.channels;
        BmpHeader::Colour colour{red.of(pixel), green.of(pixel), blue.of(pixel)};
        if (alpha.mask == 0)
            return colour;
        for (std::uint8_t& value : colour)
            value = overWhite(value, alpha.of(pixel));
        return colour;
    }

    void handOn()
    {
        const bool isTopDown = m_header.rows == BmpHeader::Rows::topDown;
        m_shrinker.add(isTopDown ? m_added : m_header.height - 1 - m_added, m_colours);
        ++m_added;
    }

    const BmpHeader& m_header;
    RowShrinker& m_shrinker;
    Bytes m_colours;
    int m_added = 0;
};

void readPlain(const BmpHeader& header, const ByteSource& source, Rows& rows)
{
    Bytes row(static_cast<std::size_t>(header.stride()));
    std::int64_t offset = header.pixelOffset;
    while (!rows.isComplete() && source(offset, row) == row.size()) {
        rows.add(row);
        offset += header.stride();
    }
}

/// The bytes of a file in order.
class Stream {
public:
    Stream(const ByteSource& source, std::int64_t offset) : m_source(source), m_offset(offset) {}

    /// Nothing at the end.
    [[nodiscard]] std::optional<std::uint8_t> next()
    {
        if (m_at == m_buffer.size()) {
            constexpr std::size_t kChunk = 64UL * 1024;
            m_buffer.resize(kChunk);
            m_buffer.resize(m_source(m_offset, m_buffer));
            m_offset += static_cast<std::int64_t>(m_buffer.size());
            m_at = 0;
            if (m_buffer.empty())
                return std::nullopt;
        }
        return m_buffer[m_at++];
    }

private:
    const ByteSource& m_source;
    std::int64_t m_offset;
    Bytes m_buffer;
    std::size_t m_at = 0;
};

/// Run-length encoding: pairs of a count and a value; a count of 0 is an escape. Skipped pixels have the
/// first colour of the palette, and pixels past the right edge are dropped.
class RunLength {
public:
    RunLength(Stream stream, std::size_t width, Rows& rows)
        : m_stream(std::move(stream)), m_rows(rows), m_row(width)
    {
    }

    void read()
    {
        while (!m_rows.isComplete()) {
            const auto count = m_stream.next();
            const auto value = m_stream.next();
            if (!count || !value || !(*count > 0 ? run(*count, *value) : escape(*value)))
                return;
        }
    }

private:
    enum Escape : std::uint8_t { endOfRow = 0, endOfPicture = 1, move = 2 };

    bool run(std::uint8_t count, std::uint8_t value)
    {
        const std::size_t end = std::min(m_row.size(), m_x + count);
        std::fill(m_row.begin() + static_cast<std::ptrdiff_t>(m_x),
                  m_row.begin() + static_cast<std::ptrdiff_t>(end), value);
        m_x = end;
        return true;
    }

    /// False at the end of the file.
    bool escape(std::uint8_t code)
    {
        switch (code) {
        case endOfRow:
            finishRow();
            m_x = 0;
            return true;
        case endOfPicture:
            while (!m_rows.isComplete())
                finishRow();
            return true;
        case move:
            return moved();
        default:
            return literal(code);
        }
    }

    bool moved()
    {
        const auto right = m_stream.next();
        const auto up = m_stream.next();
        if (!right || !up)
            return false;
        m_x = std::min(m_row.size(), m_x + *right);
        for (int i = 0; i < *up && !m_rows.isComplete(); ++i)
            finishRow();
        return true;
    }

    /// As many values as the code says, padded to an even number of bytes.
    bool literal(std::uint8_t count)
    {
        for (int i = 0; i < count; ++i) {
            const auto value = m_stream.next();
            if (!value)
                return false;
            run(1, *value);
        }
        return count % 2 == 0 || m_stream.next();
    }

    void finishRow()
    {
        m_rows.addIndexed(m_row);
        std::fill(m_row.begin(), m_row.end(), std::uint8_t{0});
    }

    Stream m_stream;
    Rows& m_rows;
    Bytes m_row;
    std::size_t m_x = 0;
};

} // namespace

std::optional<Picture> read(const ByteSource& source, const PictureBound& bound)
{
    const std::optional<BmpHeader> header = BmpHeader::read(source);
    if (!header)
        return std::nullopt;
    const PixelSize size{header->width, header->height};
    RowShrinker shrinker(size, bound.box(size));
    Rows rows(*header, shrinker);
    if (header->isRunLength)
        RunLength(Stream(source, header->pixelOffset), static_cast<std::size_t>(header->width), rows).read();
    else
        readPlain(*header, source, rows);
    if (header->height - rows.added() > ImageLimits::kLargestMissingShare * header->height)
        return std::nullopt;
    constexpr int kMostPaletteBits = 8;
    return Picture{header->width, header->height, shrinker.image(), rows.isComplete(),
                   header->bits <= kMostPaletteBits};
}

} // namespace orlen::BmpReader
