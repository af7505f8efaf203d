#pragma once

#include "platform/images/ArchiveContents.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// The contents of an archive as bytes, from a recognizer, which reads untrusted files; see ImageMessages.
/// Pure; any thread.
namespace orlen::ArchiveMessage {

/// What any contents take at most, in bytes.
inline constexpr std::size_t kLongest =
    8 + ArchiveContents::kMostItems * (ArchiveContents::kLongestName + 16);

/// The contents are within their limits.
[[nodiscard]] std::vector<std::uint8_t> encoded(const ArchiveContents& contents);
/// Nothing for bytes that no recognizer would send.
[[nodiscard]] std::optional<ArchiveContents> decoded(std::span<const std::uint8_t> bytes);

} // namespace orlen::ArchiveMessage
