#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Bytes in the escaped form of file references and Trash info files (RFC 3986). Pure; any thread.
namespace orlen::PercentCoding {

/// Every byte outside A-Z a-z 0-9 - . _ ~ / as a percent sign and two capital hexadecimal digits.
[[nodiscard]] std::string encoded(std::string_view bytes);

/// Nothing when a percent sign is not followed by two hexadecimal digits.
[[nodiscard]] std::optional<std::string> decoded(std::string_view text);

} // namespace orlen::PercentCoding
