#pragma once

#include "model/FindingKind.h"
#include "model/Rating.h"

#include <span>
#include <string_view>

/// The data that the Rater decides by. All of it is constant.
namespace orlen::RaterTables {

struct KindRule {
    FindingKind kind;
    Rating rating;
    std::string_view reason; ///< shown as the finding's reason
};

/// The rule for findings of a kind; `review` with a general reason for a kind without a row.
[[nodiscard]] const KindRule& rule(FindingKind kind);

struct KnownLocation {
    std::string_view where;
    Rating rating;
    std::string_view note;
};

// The first row that fits a path holds for it, the texts before the places.

/// `where` is text that occurs anywhere in the path, case-sensitive.
[[nodiscard]] std::span<const KnownLocation> knownTexts();
/// `where` is a place as KnownPlaces reads it.
[[nodiscard]] std::span<const KnownLocation> knownPlaces();

/// Whether entries of this kind are the user's own files, whose names are worth a look.
[[nodiscard]] bool holdsDocuments(FindingKind kind);

/// Whether a lower-case extension is that of an installer, which can be downloaded again.
[[nodiscard]] bool isInstallerExtension(std::string_view extension);

/// Whether a lower-case word names a personal document.
[[nodiscard]] bool isSensitiveWord(std::string_view word);

/// The words that unknown words are compared with by meaning, in this order.
[[nodiscard]] std::span<const std::string_view> anchorWords();

} // namespace orlen::RaterTables
