#pragma once

#include "scan/Cand.h"

#include <string>
#include <vector>

namespace orlen {

struct Places;

/// The order in which identical files are preferred for keeping: outside the Downloads folders, then the
/// shorter path in characters, then the earlier modification, and last the path's bytes, so that no two are
/// equal.
class KeepOrder {
public:
    explicit KeepOrder(const Places& places);

    /// Whether `a` is rather kept than `b`.
    [[nodiscard]] bool operator()(const Cand& a, const Cand& b) const;

private:
    [[nodiscard]] bool isDownload(const std::string& path) const;

    std::vector<std::string> m_downloads; ///< folders, with a slash at the end
};

} // namespace orlen
