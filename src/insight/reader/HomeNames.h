#pragma once

#include "scan/HomeFiles.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Finds what lies in the home folder by its whole name, in whatever case. Takes about 15 bytes for a file.
/// Immutable; any thread.
class HomeNames {
public:
    explicit HomeNames(std::shared_ptr<const HomeFiles> home);

    struct Item {
        bool isFolder = false;
        HomeFiles::Number number = 0;
    };

    [[nodiscard]] const HomeFiles& home() const { return *m_home; }
    [[nodiscard]] std::string pathOf(const Item& item) const;
    /// Whether it is the person's own, see `HomeFiles`.
    [[nodiscard]] bool isOwn(const Item& item) const;

    /// Whether something has this name, in lower case, with or without the ending of a file.
    [[nodiscard]] bool has(std::string_view lower) const;
    /// Everything with this name, in lower case: folders first, then in the order of their numbers.
    [[nodiscard]] std::vector<Item> named(std::string_view lower) const;
    /// The files that have this name, in lower case, before their ending.
    [[nodiscard]] std::vector<Item> withStem(std::string_view lower) const;
    /// Whether a file has this ending, in lower case and without the dot.
    [[nodiscard]] bool hasEnding(std::string_view lower) const;
    /// What a path in lower case leads to that begins in the home folder or, if nothing does, in a folder
    /// anywhere below: "projects/engine".
    [[nodiscard]] std::optional<Item> at(std::string_view lowerPath) const;

private:
    /// The hash of a name and the number of what has it; folders with the highest bit of the number.
    using Row = std::uint64_t;

    [[nodiscard]] std::string_view nameOf(const Item& item) const;
    [[nodiscard]] std::vector<Item> matching(const std::vector<Row>& rows, std::string_view lower,
                                             bool isWhole) const;
    [[nodiscard]] std::optional<Item> child(HomeFiles::Number folder, std::string_view lower) const;
    [[nodiscard]] std::optional<Item> below(HomeFiles::Number folder, std::string_view lowerPath) const;

    std::shared_ptr<const HomeFiles> m_home;
    std::vector<Row> m_names;
    std::vector<Row> m_stems; ///< of files that have an ending
};

} // namespace orlen
