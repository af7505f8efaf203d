#pragma once

#include <cstdint>
#include <string>

namespace orlen::Bar {

/// A bar whose length tells a part of the whole; a part that is not nothing shows.
[[nodiscard]] std::string text(std::int64_t part, std::int64_t whole);

} // namespace orlen::Bar
