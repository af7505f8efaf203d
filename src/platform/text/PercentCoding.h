#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Percent-encoding as in file URIs and Trash info files (RFC 3986). Pure; any thread.
namespace orlen::PercentCoding {

/// Escapes every byte except A-Z a-z 0-9 - . _ ~ /, with capital hexadecimal digits.
[[nodiscard]] std::string encoded(std::string_view bytes);

/// Nothing if a percent sign is not followed by two hexadecimal digits.
[[nodiscard]] std::optional<std::string> decoded(std::string_view text);

} // namespace orlen::PercentCoding
