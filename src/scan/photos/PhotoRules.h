#pragma once

#include "model/FindingKind.h"
#include "scan/photos/PhotoAnalyzer.h"

#include <optional>
#include <string>

/// Classifies a single photo by its name, labels and sharpness. Pure; any thread.
namespace orlen::PhotoRules {

struct Verdict {
    FindingKind kind; ///< `screenshots`, `receipts`, `memes` or `blurry`
    Message note;
};

/// From the first rule that matches; nothing for an ordinary photo.
[[nodiscard]] std::optional<Verdict> verdict(const PhotoInfo& photo);

} // namespace orlen::PhotoRules
