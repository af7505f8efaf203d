#pragma once

#include "insight/reader/Language.h"

#include <span>

/// The tables of the languages that take several files; those of English stand in one.
namespace orlen::AskReader {

namespace german_words {
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace german_words

namespace french_words {
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace french_words

namespace spanish_words {
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace spanish_words

namespace italian_words {
[[nodiscard]] std::span<const WordRow> asking();
[[nodiscard]] std::span<const WordRow> measures();
[[nodiscard]] std::span<const SubjectRow> subjects();
} // namespace italian_words

} // namespace orlen::AskReader
