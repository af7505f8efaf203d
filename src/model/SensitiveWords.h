#pragma once

#include <string_view>

/// Words of languages other than English that mark a file as an important document, such as an invoice, a
/// contract or a certificate. They hold whatever the language of the person: papers keep the names that their
/// senders gave them. Pure; any thread.
namespace orlen::SensitiveWords {

/// Whether a word, in lower case, is one of them.
[[nodiscard]] bool contains(std::string_view word);

/// Whether a name contains one of a language that does not part its words by spaces.
[[nodiscard]] bool areIn(std::string_view name);

} // namespace orlen::SensitiveWords
