#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

/// The launch agent tool's list of disabled labels. Untrusted input; pure.
namespace orlen::PrintDisabled {

using Labels = std::set<std::string, std::less<>>;

/// The disabled labels in lines such as `"org.example.agent" => disabled`.
[[nodiscard]] Labels labels(std::string_view text);

} // namespace orlen::PrintDisabled
