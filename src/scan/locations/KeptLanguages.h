#pragma once

#include <string>
#include <string_view>

/// Which translations of a program are of use to this person. Any thread.
namespace orlen::KeptLanguages {

/// The language of a code: "pt" for "pt-BR", "pt_BR" and "PT". Pure.
[[nodiscard]] std::string languageOf(std::string_view code);

/// Whether it is English, a program's base language, or one of the languages the person has set.
[[nodiscard]] bool contains(std::string_view code);

} // namespace orlen::KeptLanguages
