#pragma once

#include <string>

namespace orlen {

/// Whether two files hold the same data in the same place on disk (copies made by reference): every extent of
/// both is marked shared and starts at the same physical offset. Removing one then frees little. False when
/// the file system cannot tell. Blocks on the disk; any thread.
[[nodiscard]] bool shareAllExtents(const std::string& a, const std::string& b);

} // namespace orlen
