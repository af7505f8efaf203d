#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

/// What the launch agents' tool prints of the labels that are switched off. Untrusted input; pure.
namespace orlen::PrintDisabled {

using Labels = std::set<std::string, std::less<>>;

/// The labels that the text calls disabled, in lines such as `"org.example.agent" => disabled`.
[[nodiscard]] Labels labels(std::string_view text);

} // namespace orlen::PrintDisabled
