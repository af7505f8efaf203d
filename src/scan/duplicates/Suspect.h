#pragma once

#include "platform/files/FileStatus.h"
#include "platform/files/UniqueFd.h"
#include "platform/values/Sha256.h"
#include "scan/Cand.h"

#include <optional>

namespace orlen {

/// A file that may have a duplicate, during the search.
struct Suspect {
    const Cand* cand = nullptr;
    FileStatus seen;    ///< when the search first looked at it
    Digest digest{};    ///< quick hash, later the full hash
    bool isOut = false; ///< could not be read, or changed during the search
};

/// Opens the file for reading; nothing on failure. Blocks on the disk; any thread.
[[nodiscard]] std::optional<UniqueFd> open(const Suspect& suspect);

/// Whether the open file is still the one that was seen, unchanged. Checked after reading, so that it covers
/// everything read.
[[nodiscard]] bool isUnchanged(const UniqueFd& file, const Suspect& suspect);

} // namespace orlen
