#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Addresses of files. Pure; any thread.
namespace orlen::FileUri {

/// The path of "file:///p" or "file://localhost/p"; nothing for other hosts and schemes.
[[nodiscard]] std::optional<std::string> path(std::string_view address);

} // namespace orlen::FileUri
