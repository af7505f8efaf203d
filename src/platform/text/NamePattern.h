#pragma once

#include <string_view>

/// Patterns for one name, in which "*" stands for any run of bytes, also an empty one.
namespace orlen::NamePattern {

/// Whether the whole name fits the pattern. Pure.
[[nodiscard]] bool matches(std::string_view pattern, std::string_view name);

} // namespace orlen::NamePattern
