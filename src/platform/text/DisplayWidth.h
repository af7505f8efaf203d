#pragma once

#include <string>
#include <string_view>

/// How many columns text takes on a terminal: wide characters two, combining marks none. Pure; any thread.
/// Expects valid UTF-8 without control characters, as PathText::forDisplay returns it.
namespace orlen::DisplayWidth {

[[nodiscard]] int columns(std::string_view text);

/// The text if it fits, else its beginning and "…" in at most `limit` columns.
[[nodiscard]] std::string elidedEnd(std::string_view text, int limit);

/// The text if it fits, else its beginning, "…" and its end. The end gets more room: in a path it says more.
[[nodiscard]] std::string elidedMiddle(std::string_view text, int limit);

} // namespace orlen::DisplayWidth
