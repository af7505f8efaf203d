#pragma once

#include <string_view>

/// Patterns for one name, in which "*" matches any number of bytes.
namespace orlen::NamePattern {

/// Whether the pattern matches the whole name. Pure.
[[nodiscard]] bool matches(std::string_view pattern, std::string_view name);

} // namespace orlen::NamePattern
