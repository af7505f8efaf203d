#pragma once

#include "insight/reader/HomeNames.h"
#include "insight/reader/Overlaps.h"
#include "model/Finding.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orlen {

/// The words in the names of a scan's entries, so that a question need not read all names. It gives entries
/// to look at: all others don't fit. Takes about 140 bytes for an entry. Immutable; any thread.
class NameIndex {
public:
    explicit NameIndex(const std::vector<Finding>& findings);

    /// An entry, by the numbers of its finding and itself.
    struct Place {
        std::uint32_t finding = 0;
        std::uint32_t entry = 0;
    };

    /// Whether the word, in lower case, stands in a name.
    [[nodiscard]] bool hasWord(std::string_view word) const { return m_ids.contains(word); }

    /// Entries, in order, of which each word stands in the name or in a folder below the home folder.
    [[nodiscard]] std::vector<Place> withWords(std::span<const std::string> words) const;
    /// Entries, in order, of which each word is part of the name.
    [[nodiscard]] std::vector<Place> withParts(std::span<const std::string> words) const;
    /// Entries, in order, that hold each word, with one error if it has at least `shortest` bytes; and those
    /// whose name is nearly as long as `name` and holds the longest of the words with at most one error.
    [[nodiscard]] std::vector<Place> mistyped(std::string_view name, std::span<const std::string> words,
                                              std::size_t shortest) const;

private:
    struct Item {
        Place place;
        std::uint32_t folder = 0;
        std::uint32_t length = 0; ///< of the name, in bytes
    };
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    using IDs = std::vector<std::size_t>;
    /// For each item, whether it qualifies.
    using Marks = std::vector<std::uint8_t>;

    std::uint32_t idOf(std::string_view word);
    void markItems(Marks& marks, const IDs& words) const;
    [[nodiscard]] std::string_view word(std::size_t id) const;
    [[nodiscard]] IDs holding(std::string_view part) const;
    [[nodiscard]] IDs like(std::string_view word, bool mayBeMistyped) const;
    [[nodiscard]] std::vector<Place> marked(const Marks& marks) const;

    std::vector<Item> m_items;
    std::vector<std::string> m_folders; ///< below the home folder, in lower case
    std::unordered_map<std::string, std::uint32_t, Hash, std::equal_to<>> m_ids; ///< of the words
    std::string m_text;                   ///< all words, each followed by a line break
    std::vector<std::uint32_t> m_starts;  ///< of the words in the text, by word
    std::vector<std::uint32_t> m_uses;    ///< items, by word
    std::vector<std::size_t> m_firstUses; ///< by word, and one more for the end
};

/// Makes the indexes when they are first asked for, and again when the findings, or what lies in the home
/// folder, have changed. Any thread.
class NameCache {
public:
    [[nodiscard]] std::shared_ptr<const NameIndex> of(const std::vector<Finding>& findings);
    [[nodiscard]] std::shared_ptr<const Overlaps> overlapsOf(const std::vector<Finding>& findings);
    /// `home` is not null.
    [[nodiscard]] std::shared_ptr<const HomeNames> of(const std::shared_ptr<const HomeFiles>& home);

private:
    /// Forgets what is of other findings.
    void keepFor(const std::vector<Finding>& findings);

    std::mutex m_mutex;
    std::vector<std::size_t> m_signature; ///< of the findings that the index and the overlaps are of
    std::shared_ptr<const NameIndex> m_index;
    std::shared_ptr<const Overlaps> m_overlaps;
    std::shared_ptr<const HomeFiles> m_home;
    std::shared_ptr<const HomeNames> m_homeNames;
};

} // namespace orlen
