#include "scan/photos/PictureFile.h"

#include "platform/files/FileContent.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

namespace orlen {

namespace {

/// A window that moves over a file from its front.
class Window {
public:
    Window(int file, std::size_t mostBytes) : m_file(file), m_left(mostBytes) {}

    [[nodiscard]] std::string_view bytes() const { return std::string_view(m_bytes).substr(m_from); }
    [[nodiscard]] std::int64_t offset() const { return m_read - static_cast<std::int64_t>(bytes().size()); }
    void skip(std::size_t count) { m_from += count; }

    /// Reads more behind what is there. False at the end.
    bool grow()
    {
        constexpr std::size_t kPiece = 256UL * 1024;
        m_bytes.erase(0, std::exchange(m_from, 0));
        const std::size_t had = m_bytes.size();
        m_bytes.resize(had + std::min(kPiece, m_left));
        const auto got = readAt(m_file, m_read, std::as_writable_bytes(std::span(m_bytes).subspan(had)));
        const std::size_t count = got.ok() ? got.value() : 0;
        m_bytes.resize(had + count);
        m_read += static_cast<std::int64_t>(count);
        m_left -= count;
        return count > 0;
    }

private:
    int m_file;
    std::size_t m_left; ///< bytes that may still be read
    std::string m_bytes;
    std::size_t m_from = 0;
    std::int64_t m_read = 0; ///< how far in the file
};

} // namespace

PictureFile::PictureFile(const std::string& path, std::size_t mostBytes) : m_mostBytes(mostBytes)
{
    if (auto file = openFile(path); file.ok()) {
        m_file = std::move(file).value();
        announceSequentialRead(m_file.get());
    }
}

void PictureFile::visit(const Visit& visit) const
{
    using PictureRecords::Next;
    if (!m_file.isOpen())
        return;
    Window window(m_file.get(), m_mostBytes);
    if (!window.grow() || !window.bytes().starts_with(PictureRecords::header()))
        return;
    window.skip(PictureRecords::header().size());
    for (;;) {
        const Next next = PictureRecords::next(window.bytes());
        if (next.record) {
            visit(*next.record, {window.offset(), next.length});
            window.skip(next.length);
        } else if (next.isDamaged || !window.grow()) {
            return;
        }
    }
}

std::optional<std::string> PictureFile::bytes(Place place) const
{
    std::string bytes(place.length, '\0');
    const auto got = readAt(m_file.get(), place.offset, std::as_writable_bytes(std::span(bytes)));
    return got.ok() && got.value() == bytes.size() ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace orlen
