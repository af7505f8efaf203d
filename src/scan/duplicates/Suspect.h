#pragma once

#include "platform/files/FileStatus.h"
#include "platform/files/UniqueFd.h"
#include "platform/values/Sha256.h"
#include "scan/Cand.h"

#include <optional>

namespace orlen {

/// A candidate that may be identical to another one, on its way through the search.
struct Suspect {
    const Cand* cand = nullptr;
    FileStatus seen;    ///< when the search first looked at it
    Digest digest{};    ///< quick hash; once known, the full hash
    bool isOut = false; ///< could not be read, or changed during the search
};

/// Opens the file for reading; nothing when it cannot be opened. Blocks on the disk; any thread.
[[nodiscard]] std::optional<UniqueFd> open(const Suspect& suspect);

/// Whether the open file is the one that was seen, not changed since. Asked after reading, so that it speaks
/// for everything that was read.
[[nodiscard]] bool isUnchanged(const UniqueFd& file, const Suspect& suspect);

} // namespace orlen
