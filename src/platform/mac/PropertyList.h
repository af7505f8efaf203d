#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The top level of a property list file (XML or binary), as far as it is text. Untrusted input.
struct PropertyList {
    std::map<std::string, std::string, std::less<>> texts;
    /// Arrays: their elements that are text, in order.
    std::map<std::string, std::vector<std::string>, std::less<>> textLists;

    /// Nothing when the bytes are broken, unreasonably many or deep, or no dictionary. Any thread.
    [[nodiscard]] static std::optional<PropertyList> parsed(std::string_view bytes);
    /// The same of a file; nothing when it is missing. Blocks on the disk.
    [[nodiscard]] static std::optional<PropertyList> read(const std::string& path);

    /// Empty when there is no such text.
    [[nodiscard]] std::string text(std::string_view key) const;
};

} // namespace orlen
