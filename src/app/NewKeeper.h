#pragma once

#include "model/Finding.h"

#include <optional>
#include <string>
#include <vector>

/// Keeps another photo of a set of similar ones. Photos are only exchanged after a look at both: what moves
/// later moves only while the new one is there.
namespace orlen::NewKeeper {

/// An entry of a set, and the file that its set keeps.
struct Exchange {
    FileEntry chosen; ///< to be kept instead
    KeptFile former;  ///< to be listed instead
    friend bool operator==(const Exchange&, const Exchange&) = default;
};

/// Nothing if no finding of similar photos lists the path, or its set keeps no file. Pure.
[[nodiscard]] std::optional<Exchange> of(const std::vector<Finding>& findings, const std::string& path);

/// The former file as an entry that depends on the chosen one. Nothing if either file is no longer what the
/// scan saw. Blocks on the disk; any thread.
[[nodiscard]] std::optional<FileEntry> listed(const Exchange& exchange);

/// What a set kept until now, as an entry of a finding of this kind that depends on what it keeps instead.
/// Nothing if the file is no longer what the scan saw. Blocks on the disk; any thread.
[[nodiscard]] std::optional<FileEntry> asEntry(const KeptFile& former, const KeptFile& kept, FindingKind kind,
                                               Message note);
/// Whether the path still is what this stamp was made of. Blocks on the disk; any thread.
[[nodiscard]] bool isStill(const std::string& path, const FileStamp& stamp);
/// What is noted on a photo of which another one is kept by choice. Pure.
[[nodiscard]] Message noteNaming(const std::string& kept);
/// Notes what the entry is like now, in the place of what it was like before. Pure.
void noteChoice(FileEntry& entry, Message note);

/// Puts `former` into the place of the chosen one, and has all entries of the set depend on that. Pure.
void apply(std::vector<Finding>& findings, const Exchange& exchange, const FileEntry& former);

} // namespace orlen::NewKeeper
