#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names and identifiers of applications. Pure; any thread.
namespace orlen::AppNames {

/// Whether the text is a reverse-DNS identifier: at least three parts, none starting with a digit.
[[nodiscard]] bool isIdentifier(std::string_view text);

/// The part after the last dot, or all of it.
[[nodiscard]] std::string_view lastPart(std::string_view identifier);

/// What an identifier calls the application: the part after the last dot or, if that says nothing, the one
/// before it, with a capital: of "com.spotify.Client", "Spotify".
[[nodiscard]] std::string shownName(std::string_view identifier);

/// How a folder named after an application may be spelled, in lower case: the name itself, and its words
/// joined without a space, with "-" and with "_". Unique; empty for an empty name.
[[nodiscard]] std::vector<std::string> forms(std::string_view name);

/// Whether a form is too short or common for a folder of that name to belong to one application.
[[nodiscard]] bool isAmbiguous(std::string_view form);

} // namespace orlen::AppNames
