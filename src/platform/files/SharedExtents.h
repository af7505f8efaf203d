#pragma once

#include <string>

namespace orlen {

/// Whether two files share all their data on disk (reflink copies), so that removing one frees little: every
/// extent of both is marked shared and starts at the same physical offset. False if the file system cannot
/// tell. Blocks on the disk; any thread.
[[nodiscard]] bool shareAllExtents(const std::string& a, const std::string& b);

} // namespace orlen
