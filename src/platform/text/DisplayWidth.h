#pragma once

#include <string>
#include <string_view>

/// How much room a text takes on a terminal: wide characters take two columns, combining marks none. Pure,
/// any thread. Texts are valid UTF-8 without control characters, as PathText::forDisplay makes them.
namespace orlen::DisplayWidth {

[[nodiscard]] int columns(std::string_view text);

/// The text itself when it fits, else its beginning and "…", together at most `limit` columns.
[[nodiscard]] std::string elidedEnd(std::string_view text, int limit);

/// The text itself when it fits, else its beginning, "…" and its end. The end gets the larger part: in a path
/// it tells more.
[[nodiscard]] std::string elidedMiddle(std::string_view text, int limit);

} // namespace orlen::DisplayWidth
