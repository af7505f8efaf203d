#include "model/ByteCount.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orlen {

namespace {

struct Unit {
    std::string_view name;
    std::uint64_t bytes;
    std::uint64_t parts; ///< of a unit that are shown: 1 for whole numbers, 10 for one decimal
};

constexpr std::array kUnits{
    Unit{"KB", 1'000, 1},
    Unit{"MB", 1'000'000, 10},
    Unit{"GB", 1'000'000'000, 10},
    Unit{"TB", 1'000'000'000'000, 10},
};

/// The size in parts of a unit, rounded half up.
std::uint64_t roundedParts(std::uint64_t bytes, const Unit& unit)
{
    const std::uint64_t part = unit.bytes / unit.parts;
    return (bytes + part / 2) / part;
}

std::string text(std::uint64_t parts, const Unit& unit)
{
    std::string number = std::to_string(parts / unit.parts);
    if (const std::uint64_t decimal = parts % unit.parts; decimal != 0)
        number.append(".").append(std::to_string(decimal));
    return number.append(" ").append(unit.name);
}

} // namespace

std::string byteCount(std::int64_t bytes)
{
    // Unsigned, so that half a unit can be added to the largest size.
    const auto size = static_cast<std::uint64_t>(std::max<std::int64_t>(bytes, 0));
    if (size < kUnits.front().bytes)
        return std::to_string(size) + (size == 1 ? " byte" : " bytes");
    for (const Unit& unit : kUnits) {
        // The rounded value decides: 999,950,000 bytes are not "1000 MB".
        const std::uint64_t parts = roundedParts(size, unit);
        if (parts < 1'000 * unit.parts)
            return text(parts, unit);
    }
    return text(roundedParts(size, kUnits.back()), kUnits.back());
}

} // namespace orlen
