#include "platform/text/ByteCount.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace orlen {

namespace {

struct Scale {
    ByteAmount::Unit unit;
    std::string_view name;
    std::uint64_t bytes;
    std::uint64_t parts; ///< of a unit that are shown: 1 for whole numbers, 10 for one decimal
};

constexpr std::array kScales{
    Scale{ByteAmount::Unit::kilobyte, "KB", 1'000, 1},
    Scale{ByteAmount::Unit::megabyte, "MB", 1'000'000, 10},
    Scale{ByteAmount::Unit::gigabyte, "GB", 1'000'000'000, 10},
    Scale{ByteAmount::Unit::terabyte, "TB", 1'000'000'000'000, 10},
};

/// The size in parts of a unit, rounded half up.
std::uint64_t roundedParts(std::uint64_t bytes, const Scale& scale)
{
    const std::uint64_t part = scale.bytes / scale.parts;
    return (bytes + part / 2) / part;
}

} // namespace

ByteAmount ByteAmount::of(std::int64_t bytes)
{
    // Unsigned, so that half a unit can be added to the largest size.
    const auto size = static_cast<std::uint64_t>(std::max<std::int64_t>(bytes, 0));
    if (size < kScales.front().bytes)
        return {size, 0, Unit::byte};
    // The rounded value decides: 999,950,000 bytes are not "1000 MB".
    const auto* const fits = std::ranges::find_if(
        kScales, [&](const Scale& scale) { return roundedParts(size, scale) < 1'000 * scale.parts; });
    const Scale& scale = fits == kScales.end() ? kScales.back() : *fits;
    const std::uint64_t parts = roundedParts(size, scale);
    return {parts / scale.parts, static_cast<int>(parts % scale.parts), scale.unit};
}

std::string byteCount(std::int64_t bytes)
{
    const ByteAmount amount = ByteAmount::of(bytes);
    std::string text = std::to_string(amount.whole);
    if (amount.unit == ByteAmount::Unit::byte)
        return text + (amount.whole == 1 ? " byte" : " bytes");
    if (amount.tenths != 0)
        text.append(".").append(std::to_string(amount.tenths));
    return text.append(" ").append(std::ranges::find(kScales, amount.unit, &Scale::unit)->name);
}

} // namespace orlen
