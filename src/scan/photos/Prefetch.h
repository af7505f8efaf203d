#pragma once

#include <cstddef>

namespace orlen {

/// Has all of a value fetched from memory in the meantime.
template <typename Value>
void prefetch(const Value& value)
{
    constexpr std::size_t kLine = 64; // bytes
    const auto* const bytes = reinterpret_cast<const std::byte*>(&value);
    for (std::size_t i = 0; i < sizeof value; i += kLine)
        __builtin_prefetch(bytes + i);
}

} // namespace orlen
