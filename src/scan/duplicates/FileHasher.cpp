#include "scan/duplicates/FileHasher.h"

#include <algorithm>
#include <cstring>
#include <span>

namespace orlen {

namespace {

// Read in one go; a stop is checked between blocks.
constexpr std::int64_t kReadLength = 1'048'576;
// Holes start and end at multiples of this.
constexpr std::int64_t kPage = 4'096;

bool isZero(std::span<const std::byte> bytes)
{
    return bytes.front() == std::byte{0} &&
           std::memcmp(bytes.data(), bytes.data() + 1, bytes.size() - 1) == 0;
}

} // namespace

/// Fills the block from the file; false if stopped or if the file has become shorter.
bool FileHasher::read(const UniqueFd& file, std::int64_t offset, std::span<std::byte> block)
{
    if (m_stop.stop_requested())
        return false;
    const auto got = readAt(file.get(), offset, block);
    if (!got.ok() || got.value() < block.size())
        return false;
    m_bytesRead += static_cast<std::int64_t>(block.size());
    return true;
}

/// Hashes the pages of a data range that are not all zeros, with their positions.
bool FileHasher::addPages(const UniqueFd& file, FileRange data)
{
    m_buffer.resize(std::max(m_buffer.size(), static_cast<std::size_t>(kReadLength)));
    for (std::int64_t offset = data.start; offset < data.end; offset += kReadLength) {
        const auto block =
            std::span(m_buffer).first(static_cast<std::size_t>(std::min(kReadLength, data.end - offset)));
        if (!read(file, offset, block))
            return false;
        for (std::size_t at = 0; at < block.size(); at += kPage) {
            const auto page = block.subspan(at, std::min<std::size_t>(kPage, block.size() - at));
            if (isZero(page))
                continue;
            const std::int64_t place = offset + static_cast<std::int64_t>(at);
            m_hash.update(std::as_bytes(std::span(&place, 1)));
            m_hash.update(page);
        }
    }
    return true;
}

/// Reads and hashes a range; false if stopped or if the file has become shorter.
bool FileHasher::add(const UniqueFd& file, std::int64_t offset, std::int64_t length)
{
    const auto wanted = static_cast<std::size_t>(std::min(length, kReadLength));
    if (m_buffer.size() < wanted)
        m_buffer.resize(wanted);
    for (const std::int64_t end = offset + length; offset < end;) {
        const auto block =
            std::span(m_buffer).first(static_cast<std::size_t>(std::min(kReadLength, end - offset)));
        if (!read(file, offset, block))
            return false;
        m_hash.update(block);
        offset += static_cast<std::int64_t>(block.size());
    }
    return true;
}

std::optional<Digest> FileHasher::quick(const Suspect& suspect)
{
    const auto file = open(suspect);
    if (!file)
        return std::nullopt;
    ++m_filesOpened;
    // The tail is located by the file's length, not by its allocated bytes: these end before the tail of a
    // file with holes and after that of one with reserved blocks.
    const std::int64_t length = suspect.seen.length;
    bool isRead = add(*file, 0, std::min(length, kPiece));
    if (length > 2 * kPiece)
        isRead = isRead && add(*file, length - kPiece, kPiece);
    const Digest digest = m_hash.finish();
    if (!isRead || !isUnchanged(*file, suspect))
        return std::nullopt;
    return digest;
}

std::optional<Digest> FileHasher::full(const Suspect& suspect)
{
    const auto file = open(suspect);
    if (!file)
        return std::nullopt;
    announceSequentialRead(file->get());
    const std::int64_t length = suspect.seen.length;
    bool isRead = true;
    for (std::int64_t offset = 0; isRead && offset < length;) {
        const auto data = nextData(file->get(), offset, length);
        isRead = data.ok();
        if (!isRead || !data.value())
            break;
        // From the start of the page, so that its hash does not depend on the holes around it.
        const std::int64_t start = std::max(offset, data.value()->start / kPage * kPage);
        const std::int64_t end = std::min(length, (data.value()->end + kPage - 1) / kPage * kPage);
        isRead = addPages(*file, {start, end});
        offset = end;
    }
    const Digest digest = m_hash.finish();
    if (!isRead || !isUnchanged(*file, suspect))
        return std::nullopt;
    return digest;
}

} // namespace orlen
