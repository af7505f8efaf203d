#pragma once

#include "platform/values/WideLanes.h"

#include <cstddef>

namespace orlen {

/// Has all of a value fetched from memory in the meantime. A call that is not inlined would be left out by
/// the compiler, as nothing comes of it.
template <typename Value>
ORLEN_INLINE void prefetch(const Value& value)
{
    constexpr std::size_t kLine = 64; // bytes
    const auto* const bytes = reinterpret_cast<const std::byte*>(&value);
    for (std::size_t i = 0; i < sizeof value; i += kLine)
        __builtin_prefetch(bytes + i);
    __builtin_prefetch(bytes + sizeof value - 1);
}

} // namespace orlen
