#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Names and identifiers of applications as text. Pure; any thread.
namespace orlen::AppNames {

/// Whether the text is a reverse-DNS identifier: at least three parts, none of which begins with a digit.
[[nodiscard]] bool isIdentifier(std::string_view text);

/// What follows the last dot; all of it without one.
[[nodiscard]] std::string_view lastPart(std::string_view identifier);

/// How folders named after an application are spelled, in lower case: its name as it is, and its words
/// without a space, with "-" and with "_" between them. Each once; empty for an empty name.
[[nodiscard]] std::vector<std::string> forms(std::string_view name);

/// Whether a form is too short or too common for a folder of that name to belong to one application.
[[nodiscard]] bool isAmbiguous(std::string_view form);

} // namespace orlen::AppNames
