#pragma once

#include "model/FileEntry.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orlen {

/// A file found by the walk, a candidate for several findings.
struct Cand {
    std::string path;      ///< valid UTF-8
    std::int64_t size = 0; ///< allocated bytes
    TimePoint modified;
    std::optional<FileStamp> stamp; ///< what the path referred to then

    friend bool operator==(const Cand&, const Cand&) = default;
};

/// The file as an entry of a finding.
[[nodiscard]] FileEntry toEntry(const Cand& cand);
/// The file as the kept one of a set; nothing without a stamp.
[[nodiscard]] std::optional<KeptFile> toKept(const Cand& cand);

} // namespace orlen
