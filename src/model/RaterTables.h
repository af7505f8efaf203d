#pragma once

#include "model/FindingKind.h"
#include "model/Rating.h"

#include <span>
#include <string_view>

/// The constant tables behind the Rater.
namespace orlen::RaterTables {

struct KindRule {
    FindingKind kind;
    Rating rating;
    Text reason; ///< shown as the finding's reason
};

/// The rule for a kind; a kind without a row gets `review` and a general reason.
[[nodiscard]] const KindRule& rule(FindingKind kind);

struct KnownLocation {
    std::string_view where;
    Rating rating;
    Text note;
};

/// The first row that matches a path applies; `where` may occur anywhere in it, case-sensitive.
[[nodiscard]] std::span<const KnownLocation> knownTexts();

/// Whether entries of this kind are the user's own files, whose names deserve a look.
[[nodiscard]] bool holdsDocuments(FindingKind kind);

/// Whether a lower-case extension belongs to an installer, which can be downloaded again.
[[nodiscard]] bool isInstallerExtension(std::string_view extension);

/// Whether a lower-case word suggests a personal document.
[[nodiscard]] bool isSensitiveWord(std::string_view word);

/// The words whose meaning unknown words are compared with, in this order.
[[nodiscard]] std::span<const std::string_view> anchorWords();

} // namespace orlen::RaterTables
