#include "recognition/ArchiveReader.h"

#include "platform/files/FileContent.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <archive.h>
#include <archive_entry.h>
#include <chrono>
#include <clocale>
#include <memory>
#include <span>
#include <unistd.h>
#include <vector>

namespace orlen::ArchiveReader {

namespace {

using Clock = std::chrono::steady_clock;

/// A packed archive has to be unpacked to find its items.
constexpr std::chrono::seconds kLongest{2};
constexpr std::size_t kBlock = 65'536;

/// The file as the library reads it, until the time is up.
class Source {
public:
    explicit Source(int descriptor) : m_descriptor(descriptor), m_block(kBlock)
    {
        m_length = std::max<std::int64_t>(0, ::lseek(descriptor, 0, SEEK_END));
    }

    [[nodiscard]] bool isLate() const { return Clock::now() > m_end; }

    la_ssize_t read(const void** block)
    {
        if (isLate())
            return ARCHIVE_FATAL;
        const auto got = readAt(m_descriptor, m_place, std::as_writable_bytes(std::span(m_block)));
        if (!got.ok())
            return ARCHIVE_FATAL;
        *block = m_block.data();
        m_place += static_cast<std::int64_t>(got.value());
        return static_cast<la_ssize_t>(got.value());
    }

    la_int64_t skip(la_int64_t bytes)
    {
        const std::int64_t before = m_place;
        m_place += std::clamp<std::int64_t>(bytes, 0, std::max<std::int64_t>(0, m_length - m_place));
        return m_place - before;
    }

    la_int64_t seek(la_int64_t offset, int from)
    {
        const std::int64_t start = from == SEEK_SET ? 0 : from == SEEK_CUR ? m_place : m_length;
        // The offset is the archive's own number, and may be any.
        m_place = start + std::clamp<std::int64_t>(offset, -start, m_length - start);
        return m_place;
    }

private:
    int m_descriptor;
    std::vector<char> m_block;
    std::int64_t m_length = 0;
    std::int64_t m_place = 0;
    Clock::time_point m_end = Clock::now() + kLongest;
};

struct Close {
    void operator()(archive* opened) const { ::archive_read_free(opened); }
};
using Archive = std::unique_ptr<archive, Close>;

/// What needs no other program.
void allowKnownKinds(archive* opened)
{
    for (const auto allow :
         {archive_read_support_filter_gzip, archive_read_support_filter_bzip2, archive_read_support_filter_xz,
          archive_read_support_filter_lzma, archive_read_support_filter_zstd, archive_read_support_filter_lz4,
          archive_read_support_filter_compress, archive_read_support_filter_rpm,
          archive_read_support_format_zip, archive_read_support_format_tar, archive_read_support_format_7zip,
          archive_read_support_format_rar, archive_read_support_format_rar5, archive_read_support_format_cpio,
          archive_read_support_format_ar, archive_read_support_format_cab,
          archive_read_support_format_iso9660, archive_read_support_format_lha})
        (void)allow(opened);
}

bool open(archive* opened, Source& source)
{
    ::archive_read_set_callback_data(opened, &source);
    ::archive_read_set_read_callback(opened, [](archive*, void* from, const void** block) {
        return static_cast<Source*>(from)->read(block);
    });
    ::archive_read_set_skip_callback(opened, [](archive*, void* from, la_int64_t bytes) {
        return static_cast<Source*>(from)->skip(bytes);
    });
    ::archive_read_set_seek_callback(opened, [](archive*, void* from, la_int64_t offset, int start) {
        return static_cast<Source*>(from)->seek(offset, start);
    });
    return ::archive_read_open1(opened) >= ARCHIVE_WARN;
}

/// Nothing for an entry without a name.
std::optional<ArchiveContents::Item> itemOf(archive_entry* entry)
{
    const char* name = ::archive_entry_pathname_utf8(entry);
    if (name == nullptr)
        name = ::archive_entry_pathname(entry);
    if (name == nullptr || *name == '\0')
        return std::nullopt;
    ArchiveContents::Item item{.name = name};
    if (item.name.size() > ArchiveContents::kLongestName)
        item.name.erase(0, item.name.size() - ArchiveContents::kLongestName);
    item.isFolder = ::archive_entry_filetype(entry) == AE_IFDIR;
    if (!item.isFolder && ::archive_entry_size_is_set(entry) != 0)
        item.bytes = std::clamp<std::int64_t>(::archive_entry_size(entry), 0, kMostBytes);
    return item;
}

} // namespace

void prepare()
{
    // Names are converted to this.
    (void)std::setlocale(LC_CTYPE, "C.UTF-8");
}

std::optional<ArchiveContents> read(int descriptor)
{
    Source source(descriptor);
    const Archive opened(::archive_read_new());
    if (!opened)
        return std::nullopt;
    allowKnownKinds(opened.get());
    if (!open(opened.get(), source))
        return std::nullopt;
    ArchiveContents contents;
    archive_entry* entry = nullptr;
    int outcome = ::archive_read_next_header(opened.get(), &entry);
    for (; outcome == ARCHIVE_OK || outcome == ARCHIVE_WARN;
         outcome = ::archive_read_next_header(opened.get(), &entry)) {
        if (contents.items.size() == ArchiveContents::kMostItems || source.isLate()) {
            contents.extent = ArchiveContents::Extent::beginning;
            return contents;
        }
        if (auto item = itemOf(entry))
            contents.items.push_back(*std::move(item));
    }
    if (outcome != ARCHIVE_EOF) {
        contents.extent =
            source.isLate() ? ArchiveContents::Extent::beginning : ArchiveContents::Extent::damaged;
        if (contents.items.empty() && !source.isLate())
            return std::nullopt;
    }
    return contents;
}

} // namespace orlen::ArchiveReader
