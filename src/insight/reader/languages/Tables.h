#pragma once

#include "insight/reader/Language.h"

#include <span>

/// The tables of the languages: words for what Orlen does, for what is asked, words for measures, and kinds
/// of things.
namespace orlen::AskReader {

namespace english_words {
[[nodiscard]] std::span<const WordRow> ofOrlen();
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace english_words

namespace german_words {
[[nodiscard]] std::span<const WordRow> ofOrlen();
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace german_words

namespace french_words {
[[nodiscard]] std::span<const WordRow> ofOrlen();
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace french_words

namespace spanish_words {
[[nodiscard]] std::span<const WordRow> ofOrlen();
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace spanish_words

namespace italian_words {
[[nodiscard]] std::span<const WordRow> ofOrlen();
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace italian_words

} // namespace orlen::AskReader
