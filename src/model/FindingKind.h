#pragma once

#include "model/OrlenCategory.h"
#include "model/Text.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace orlen {

/// The 24 kinds of finding, in the order of the catalogue.
enum class FindingKind {
    caches,
    logs,
    iosBackups,
    softwareUpdates,
    xcodeDerived,
    xcodeArchives,
    simulators,
    deviceSupport,
    homebrew,
    npm,
    pip,
    gradle,
    trash,
    mailDownloads,
    languagePacks,
    largeFiles,
    oldFiles,
    oldDownloads,
    duplicates,
    photoDuplicates,
    screenshots,
    receipts,
    memes,
    blurry,
};

inline constexpr std::size_t kFindingKinds = 24;

/// All kinds in the order of the catalogue.
[[nodiscard]] const std::array<FindingKind, kFindingKinds>& allKinds();

/// The fixed texts of a kind.
struct KindMeta {
    Text title;
    Text explanation;
    std::string_view symbol; ///< icon name
    OrlenCategory category;
};

[[nodiscard]] const KindMeta& meta(FindingKind kind);

/// Whether findings of this kind come from known places rather than from a walk of the home folder.
[[nodiscard]] bool isFromPlaces(FindingKind kind);

/// The case's name, which is also the identity of the finding of this kind.
[[nodiscard]] std::string_view rawValue(FindingKind kind);
/// The case with exactly this raw value; nothing for any other text.
[[nodiscard]] std::optional<FindingKind> kindFromRaw(std::string_view raw);

} // namespace orlen
