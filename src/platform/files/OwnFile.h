#pragma once

#include "platform/values/Result.h"

#include <cstdint>
#include <string>

/// What is done to files of the program's own and to nothing else: a file of the user's is never opened for
/// writing. Links are not followed. Any thread; blocks on the disk.
namespace orlen::OwnFile {

/// Lengthens the file to `length` bytes that no file system can store in less, making it first when it is
/// missing. On failure it is as long as it came.
[[nodiscard]] Result<void> fill(const std::string& path, std::int64_t length);

/// Cuts the file to `length` bytes.
[[nodiscard]] Result<void> shorten(const std::string& path, std::int64_t length);

/// Gives the file another name in its folder, over what has that name.
[[nodiscard]] Result<void> rename(const std::string& path, const std::string& newName);

/// Removes what `replaceFile` and `writeNewFile` left in a folder when their process was killed.
void removeUnfinished(const std::string& folder);

} // namespace orlen::OwnFile
