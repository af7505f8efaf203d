#pragma once

#include "model/FileEntry.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// A file found by the walk, a candidate for several findings.
struct Cand {
    std::string path;      ///< valid UTF-8
    std::int64_t size = 0; ///< allocated bytes
    TimePoint modified;
    std::optional<FileStamp> stamp; ///< what the path referred to then
    bool hasOtherNames = false;     ///< further hard links to the file, wherever they are
    bool isInRepository = false;    ///< below a folder with ".git"

    friend bool operator==(const Cand&, const Cand&) = default;
};

/// The file as an entry of a finding; `note` comes before what is to be said about any file.
[[nodiscard]] FileEntry toEntry(const Cand& cand, Message note = {});
/// The same for a file chosen by its content: part of a repository is noted as such, and never ticked along
/// with others.
[[nodiscard]] FileEntry toEntryByContent(const Cand& cand, Message note);
/// The file as the kept one of a set; nothing without a stamp.
[[nodiscard]] std::optional<KeptFile> toKept(const Cand& cand);

} // namespace orlen
