#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Tells which cache folders belong to a program that is running now. As of its construction; any thread.
class CacheOwners {
public:
    /// Reads the process table.
    CacheOwners();

    /// The running program that writes to a cache folder of this name; empty if none does. Folders are named
    /// like their program unless known otherwise.
    [[nodiscard]] std::string running(std::string_view folder) const;

private:
    std::vector<std::string> m_programs; ///< names of executables in lower case
};

} // namespace orlen
