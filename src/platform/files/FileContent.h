#pragma once

#include "platform/files/FileStatus.h"
#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace orlen {

/// Opens a regular file for reading: links are not followed, a FIFO or device is refused without waiting for
/// it, and where the system allows it the access time stays. EINVAL for what is no regular file.
/// Blocks on the disk; any thread.
[[nodiscard]] Result<UniqueFd> openFile(const std::string& path);
[[nodiscard]] Result<UniqueFd> openFileAt(int folder, const char* name);

/// Reads up to `buffer.size()` bytes at `offset`; fewer only at the end of the file.
[[nodiscard]] Result<std::size_t> readAt(int file, std::int64_t offset, std::span<std::byte> buffer);

/// A run of bytes of a file.
struct FileRange {
    std::int64_t start = 0;
    std::int64_t end = 0; ///< the first byte behind it
    friend bool operator==(const FileRange&, const FileRange&) = default;
};

/// The first run of bytes at or behind `offset` and before `length` that may hold anything but zeros; nothing
/// when the rest is a hole. A file system that does not know holes takes all for data. `length` is the
/// file's.
[[nodiscard]] Result<std::optional<FileRange>> nextData(int file, std::int64_t offset, std::int64_t length);

/// The whole content of a file of at most `limit` bytes; EFBIG when it is longer.
[[nodiscard]] Result<std::string> readWholeFile(const std::string& path, std::size_t limit);
/// The same; nothing when it cannot be read or is longer.
[[nodiscard]] std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit);
/// At most the first `limit` bytes of a file relative to an open folder; nothing when it cannot be read.
[[nodiscard]] std::optional<std::string> readHeadAt(int folder, const char* name, std::size_t limit);

/// Where the links lead that a name of the program's own may have been made; the path itself when it is no
/// link, or missing. The result may not exist either. ELOOP for links in a circle.
[[nodiscard]] Result<std::string> linkEnd(const std::string& path);

/// Tells the system that the file will be read once from front to back.
void announceSequentialRead(int file);

} // namespace orlen
