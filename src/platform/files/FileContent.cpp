#include "platform/files/FileContent.h"

#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen {

namespace {

constexpr int kReadFlags = O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

/// At most the first `limit` bytes.
Result<std::string> readHead(int folder, const char* name, std::size_t limit)
{
    const auto file = openFileAt(folder, name);
    if (!file.ok())
        return Errno{file.error()};
    std::string content;
    constexpr std::size_t kStep = 64UL * 1024;
    while (content.size() < limit) {
        const std::size_t start = content.size();
        content.resize(std::min(limit, start + kStep));
        const auto got = readAt(file.value().get(), static_cast<std::int64_t>(start),
                                std::as_writable_bytes(std::span(content).subspan(start)));
        if (!got.ok())
            return Errno{got.error()};
        const bool isWhole = start + got.value() < content.size();
        content.resize(start + got.value());
        if (isWhole)
            break;
    }
    return content;
}

} // namespace

Result<UniqueFd> openFile(const std::string& path)
{
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    return openFileAt(AT_FDCWD, path.c_str());
}

Result<UniqueFd> openFileAt(int folder, const char* name)
{
    // Opening a device can have effects (a tape rewinds): check first, then verify that what was opened is
    // what was checked.
    const auto before = statusAt(folder, name);
    if (!before.ok())
        return Errno{before.error()};
    if (before.value().type != FileType::regular)
        return Errno{EINVAL};
    auto file = retriedFd([&] { return ::openat(folder, name, kReadFlags | O_NOATIME); });
    if (!file.ok() && file.error() == EPERM)
        file = retriedFd([&] { return ::openat(folder, name, kReadFlags); });
    if (!file.ok())
        return file;
    struct stat opened {};
    if (::fstat(file.value().get(), &opened) != 0 || !S_ISREG(opened.st_mode))
        return Errno{EINVAL};
    return file;
}

Result<std::size_t> readAt(int file, std::int64_t offset, std::span<std::byte> buffer)
{
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        const auto got = retried([&] {
            return ::pread(file, buffer.data() + filled, buffer.size() - filled,
                           offset + static_cast<std::int64_t>(filled));
        });
        if (got < 0)
            return Errno{errno};
        if (got == 0)
            break;
        filled += static_cast<std::size_t>(got);
    }
    return filled;
}

Result<std::optional<FileRange>> nextData(int file, std::int64_t offset, std::int64_t length)
{
    if (offset >= length)
        return std::optional<FileRange>();
    const std::int64_t start = ::lseek(file, offset, SEEK_DATA);
    if (start < 0 && errno == ENXIO)
        return std::optional<FileRange>();
    if (start < 0 && errno == EINVAL)
        return std::optional(FileRange{offset, length});
    if (start < 0)
        return Errno{errno};
    if (start >= length)
        return std::optional<FileRange>();
    const std::int64_t end = ::lseek(file, start, SEEK_HOLE);
    if (end < 0)
        return Errno{errno};
    return std::optional(FileRange{start, std::min(end, length)});
}

Result<std::string> readWholeFile(const std::string& path, std::size_t limit)
{
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    auto head = readHead(AT_FDCWD, path.c_str(), limit + 1);
    if (head.ok() && head.value().size() > limit)
        return Errno{EFBIG};
    return head;
}

std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit)
{
    auto content = readWholeFile(path, limit);
    return content.ok() ? std::optional(std::move(content).value()) : std::nullopt;
}

std::optional<std::string> readHeadAt(int folder, const char* name, std::size_t limit)
{
    auto head = readHead(folder, name, limit);
    return head.ok() ? std::optional(std::move(head).value()) : std::nullopt;
}

Result<std::string> linkEnd(const std::string& path)
{
    constexpr int kMostLinks = 40;
    std::string at = path;
    for (int links = 0; links <= kMostLinks; ++links) {
        const auto status = statusOf(at);
        if (!status.ok() && status.error() != ENOENT && status.error() != ENOTDIR)
            return Errno{status.error()};
        if (!status.ok() || status.value().type != FileType::link)
            return at;
        std::array<char, PATH_MAX> target{};
        const auto length = ::readlink(at.c_str(), target.data(), target.size());
        if (length < 0)
            return Errno{errno};
        const std::string_view text(target.data(), static_cast<std::size_t>(length));
        at = text.starts_with('/') ? std::string(text) : PathText::join(PathText::parent(at), text);
    }
    return Errno{ELOOP};
}

void announceSequentialRead(int file)
{
    ::posix_fadvise(file, 0, 0, POSIX_FADV_SEQUENTIAL);
}

} // namespace orlen
