#include "platform/files/SharedExtents.h"

#include "platform/files/FileContent.h"
#include "platform/files/Retrying.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <optional>
#include <span>
#include <sys/ioctl.h>

namespace orlen {

namespace {

/// Lists the extents of an open file, a bounded number per system call. Does not flush first: an extent still
/// on its way to the disk is not shared.
class ExtentReader {
public:
    ExtentReader(int file, std::int64_t length) : m_file(file), m_end(static_cast<std::uint64_t>(length)) {}

    /// The next extent with content; nothing at the end or if the file system cannot tell.
    std::optional<fiemap_extent> next()
    {
        if (m_taken == m_listed.size() && !refill())
            return std::nullopt;
        const fiemap_extent extent = m_listed[m_taken++];
        m_start = extent.fe_logical + extent.fe_length;
        m_isLast = (extent.fe_flags & FIEMAP_EXTENT_LAST) != 0;
        return extent;
    }
    /// Whether the listing ended because it was complete rather than failed.
    [[nodiscard]] bool isComplete() const { return !m_hasFailed; }

private:
    static constexpr std::uint32_t kAtOnce = 128;
    // No real file has more; an endless map would be a bug of the file system.
    static constexpr int kMostCalls = 1 << 16;

    bool refill()
    {
        // Blocks reserved past the end say nothing about the content.
        if (m_isLast || m_start >= m_end)
            return false;
        auto* map = new (m_buffer.data()) fiemap{};
        map->fm_start = m_start;
        map->fm_length = m_end - m_start;
        map->fm_extent_count = kAtOnce;
        m_hasFailed =
            ++m_calls > kMostCalls || retried([&] { return ::ioctl(m_file, FS_IOC_FIEMAP, map); }) != 0;
        if (m_hasFailed)
            return false;
        const auto* extents = reinterpret_cast<const fiemap_extent*>(m_buffer.data() + sizeof(fiemap));
        m_listed = std::span(extents, map->fm_mapped_extents);
        m_taken = 0;
        return !m_listed.empty();
    }

    int m_file;
    std::uint64_t m_end;
    std::uint64_t m_start = 0;
    bool m_isLast = false;
    bool m_hasFailed = false;
    int m_calls = 0;
    std::span<const fiemap_extent> m_listed;
    std::size_t m_taken = 0;
    alignas(fiemap) std::array<std::byte, sizeof(fiemap) + kAtOnce * sizeof(fiemap_extent)> m_buffer{};
};

/// Whether both are at a known place on disk, and at the same one.
bool isSamePlace(const fiemap_extent& a, const fiemap_extent& b)
{
    constexpr std::uint32_t kNowhere = FIEMAP_EXTENT_UNKNOWN | FIEMAP_EXTENT_DATA_INLINE;
    return (a.fe_flags & b.fe_flags & FIEMAP_EXTENT_SHARED) != 0 &&
           ((a.fe_flags | b.fe_flags) & kNowhere) == 0 && a.fe_physical == b.fe_physical &&
           a.fe_logical == b.fe_logical && a.fe_length == b.fe_length;
}

bool haveSameExtents(ExtentReader& a, ExtentReader& b)
{
    for (bool isAnyShared = false;; isAnyShared = true) {
        const auto ofA = a.next();
        const auto ofB = b.next();
        // Files without extents have nothing to share.
        if (!ofA && !ofB)
            return isAnyShared && a.isComplete() && b.isComplete();
        if (!ofA || !ofB || !isSamePlace(*ofA, *ofB))
            return false;
    }
}

} // namespace

bool shareAllExtents(const std::string& a, const std::string& b)
{
    const auto fileA = openFile(a);
    const auto fileB = openFile(b);
    if (!fileA.ok() || !fileB.ok())
        return false;
    const auto statusA = statusOfOpen(fileA.value().get());
    const auto statusB = statusOfOpen(fileB.value().get());
    // Physical offsets are per disk: on two disks they may be equal by accident.
    if (!statusA.ok() || !statusB.ok() || statusA.value().length != statusB.value().length ||
        statusA.value().identity.device != statusB.value().identity.device)
        return false;
    ExtentReader readerA(fileA.value().get(), statusA.value().length);
    ExtentReader readerB(fileB.value().get(), statusB.value().length);
    return haveSameExtents(readerA, readerB);
}

} // namespace orlen
