#pragma once

#include <cstdint>
#include <string>

namespace orlen::Bar {

/// A bar as long as the part's share of the whole; empty for nothing, at least one block for anything else.
[[nodiscard]] std::string text(std::int64_t part, std::int64_t whole);

} // namespace orlen::Bar
