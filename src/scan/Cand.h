#pragma once

#include "model/FileEntry.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orlen {

/// One walked file.
struct Cand {
    std::string path;      ///< valid UTF-8
    std::int64_t size = 0; ///< allocated bytes
    TimePoint modified;
    std::optional<FileStamp> stamp; ///< what stood under the path then

    friend bool operator==(const Cand&, const Cand&) = default;
};

/// The file as an entry of a finding.
[[nodiscard]] FileEntry toEntry(const Cand& cand);
/// The file as the kept one of a set; nothing when it is not known what stood there.
[[nodiscard]] std::optional<KeptFile> toKept(const Cand& cand);

} // namespace orlen
