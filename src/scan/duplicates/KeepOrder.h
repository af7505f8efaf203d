#pragma once

#include "scan/Cand.h"

#include <string>
#include <vector>

namespace orlen {

struct Places;

/// Which of several identical files to keep: preferably one outside the Downloads folders, then the shorter
/// path in characters, then the earlier modification, then by the path's bytes, so that there are no ties.
class KeepOrder {
public:
    explicit KeepOrder(const Places& places);

    /// Whether to keep `a` rather than `b`.
    [[nodiscard]] bool operator()(const Cand& a, const Cand& b) const;

private:
    [[nodiscard]] bool isDownload(const std::string& path) const;

    std::vector<std::string> m_downloads; ///< folders with a trailing slash
};

} // namespace orlen
