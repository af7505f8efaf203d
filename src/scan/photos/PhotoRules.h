#pragma once

#include "model/FindingKind.h"
#include "scan/photos/PhotoAnalyzer.h"

#include <optional>
#include <string>

/// Tells by its name, its labels and its sharpness what a single photo is. Pure; any thread.
namespace orlen::PhotoRules {

struct Verdict {
    FindingKind kind; ///< `screenshots`, `receipts`, `memes` or `blurry`
    std::string note;
};

/// The first rule that holds; nothing for a photo to leave alone.
[[nodiscard]] std::optional<Verdict> verdict(const PhotoInfo& photo);

} // namespace orlen::PhotoRules
