#pragma once

#include "scan/Cand.h"
#include "scan/duplicates/KeepRule.h"

#include <compare>
#include <string>
#include <vector>

namespace orlen {

struct Places;

/// Which of several identical files to keep: first by the rule, then preferably one outside the Downloads
/// folders, then the shorter path in characters, then the earlier modification, then by the path's bytes, so
/// that there are no ties.
class KeepOrder {
public:
    explicit KeepOrder(const Places& places, KeepRule rule = {});

    /// Whether to keep `a` rather than `b`.
    [[nodiscard]] bool operator()(const Cand& a, const Cand& b) const;
    /// Which of the paths to keep as far as the folders of the rule tell: the lesser one.
    [[nodiscard]] std::strong_ordering byPlace(const std::string& a, const std::string& b) const;
    /// Whether the path is in one of the rule's reference folders.
    [[nodiscard]] bool isReference(const std::string& path) const;

private:
    [[nodiscard]] bool isDownload(const std::string& path) const;

    KeepRule m_rule;
    std::vector<std::string> m_downloads; ///< folders with a trailing slash
};

} // namespace orlen
