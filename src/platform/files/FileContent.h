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

/// Opens a regular file for reading. Links are not followed, FIFOs and devices are refused without blocking
/// on them, and the access time is kept where the system allows. EINVAL if it is not a regular file. Blocks
/// on the disk; any thread.
[[nodiscard]] Result<UniqueFd> openFile(const std::string& path);
[[nodiscard]] Result<UniqueFd> openFileAt(int folder, const char* name);

/// Reads up to `buffer.size()` bytes at `offset`; fewer only at the end of the file.
[[nodiscard]] Result<std::size_t> readAt(int file, std::int64_t offset, std::span<std::byte> buffer);

/// A range of bytes in a file.
struct FileRange {
    std::int64_t start = 0;
    std::int64_t end = 0; ///< one past the last byte
    friend bool operator==(const FileRange&, const FileRange&) = default;
};

/// The first range at or after `offset` that may hold anything but zeros; nothing when the rest of the file
/// is a hole. A file system without holes reports everything as data. `length` is the length of the file.
[[nodiscard]] Result<std::optional<FileRange>> nextData(int file, std::int64_t offset, std::int64_t length);

/// The whole content of a file of at most `limit` bytes; EFBIG if it is longer.
[[nodiscard]] Result<std::string> readWholeFile(const std::string& path, std::size_t limit);
/// The same; nothing if it cannot be read or is longer.
[[nodiscard]] std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit);
/// At most the first `limit` bytes of a file in an open folder; nothing if it cannot be read.
[[nodiscard]] std::optional<std::string> readHeadAt(int folder, const char* name, std::size_t limit);

/// Follows a link, or a chain of them, to where it ends; the path itself if it is not a link or is missing.
/// The result need not exist. ELOOP for a cycle.
[[nodiscard]] Result<std::string> linkEnd(const std::string& path);

/// Tells the system that the file will be read once, front to back.
void announceSequentialRead(int file);

} // namespace orlen
