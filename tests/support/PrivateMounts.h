#pragma once

#include "platform/files/UniqueFd.h"

#include <string>
#include <vector>

namespace orlen {

/// Mounts that only this test program sees, undone at the end of the test. Needs root or user namespaces;
/// where neither is to be had the test says so and is skipped.
class PrivateMounts {
public:
    PrivateMounts();
    ~PrivateMounts();
    PrivateMounts(const PrivateMounts&) = delete;
    PrivateMounts& operator=(const PrivateMounts&) = delete;

    /// Why nothing can be mounted here; empty when all is well.
    [[nodiscard]] const std::string& obstacle() const { return m_obstacle; }

    /// Shows the folder `source` at `target`, as a mount of its own. Both must exist.
    [[nodiscard]] bool bind(const std::string& source, const std::string& target);
    /// Mounts a file system in memory of so many bytes.
    [[nodiscard]] bool memory(std::size_t bytes, const std::string& target);
    /// Mounts a file system that never answers, as of a server that is gone.
    [[nodiscard]] bool dead(const std::string& target);
    /// Mounts a fresh ext4 file system from the image file `image`, which is made.
    [[nodiscard]] bool disk(const std::string& image, const std::string& target);

private:
    std::string m_obstacle;
    std::vector<std::string> m_targets;
    std::vector<UniqueFd> m_silent; ///< where the requests of dead mounts gather that nobody takes
};

} // namespace orlen
