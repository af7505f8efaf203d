#include "scan/duplicates/FileHasher.h"

#include "platform/FileContent.h"

#include <algorithm>
#include <span>

namespace orlen {

namespace {

// Read at once; a stop is looked for between two blocks.
constexpr std::int64_t kReadLength = 1'048'576;

} // namespace

/// Reads and hashes a range; false when stopped or when the file has become shorter.
bool FileHasher::add(const UniqueFd& file, std::int64_t offset, std::int64_t length)
{
    const auto wanted = static_cast<std::size_t>(std::min(length, kReadLength));
    if (m_buffer.size() < wanted)
        m_buffer.resize(wanted);
    for (const std::int64_t end = offset + length; offset < end;) {
        if (m_stop.stop_requested())
            return false;
        const auto block =
            std::span(m_buffer).first(static_cast<std::size_t>(std::min(kReadLength, end - offset)));
        const auto got = readAt(file.get(), offset, block);
        if (!got.ok() || got.value() < block.size())
            return false;
        m_hash.update(block);
        offset += static_cast<std::int64_t>(block.size());
        m_bytesRead += static_cast<std::int64_t>(block.size());
    }
    return true;
}

std::optional<Digest> FileHasher::quick(const Suspect& suspect)
{
    const auto file = open(suspect);
    if (!file)
        return std::nullopt;
    ++m_filesOpened;
    // The tail is found by the length of the content, not by the allocated bytes that files are grouped by:
    // these end elsewhere, in front of the tail of a file with holes and behind that of one with reserved
    // blocks.
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
    const bool isRead = add(*file, 0, suspect.seen.length);
    const Digest digest = m_hash.finish();
    if (!isRead || !isUnchanged(*file, suspect))
        return std::nullopt;
    return digest;
}

} // namespace orlen
