#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The strings at the top level of a property list (XML or binary). Untrusted input.
struct PropertyList {
    std::map<std::string, std::string, std::less<>> texts;
    /// Arrays: their string elements, in order.
    std::map<std::string, std::vector<std::string>, std::less<>> textLists;

    /// Nothing if the bytes are broken, unreasonably many or deep, or not a dictionary. Any thread.
    [[nodiscard]] static std::optional<PropertyList> parsed(std::string_view bytes);
    /// The same for a file; nothing if it is missing. Blocks on the disk.
    [[nodiscard]] static std::optional<PropertyList> read(const std::string& path);

    /// Empty if there is no such string.
    [[nodiscard]] std::string text(std::string_view key) const;
};

} // namespace orlen
