#pragma once

#include "model/FileEntry.h"
#include "window/findings/EntryOrder.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace orlen {

class PathTree;

/// The entries of a finding, which of them are selected, and the rows that show some of them in some order. A
/// plain value; any thread.
class EntryRows {
public:
    EntryRows() = default;
    /// Without rows.
    EntryRows(std::vector<FileEntry> entries, Rating rating);

    /// In the finding's order.
    [[nodiscard]] const std::vector<FileEntry>& entries() const { return m_entries; }
    /// Of entries without their own.
    [[nodiscard]] Rating rating() const { return m_rating; }
    /// Each row's index into the entries.
    [[nodiscard]] std::vector<int>& rows() { return m_rows; }
    [[nodiscard]] const std::vector<int>& rows() const { return m_rows; }
    /// The rows that show what the wish asks for.
    [[nodiscard]] std::vector<int> wanted(const EntryOrder::Wish& wish);

    [[nodiscard]] const FileEntry& at(int row) const { return m_entries[index(row)]; }
    [[nodiscard]] bool isSelected(int row) const { return m_isSelected[index(row)]; }
    void setSelected(int row, bool isSelected) { m_isSelected[index(row)] = isSelected; }
    void readSelection(const std::set<std::string>& selection);
    /// Whether "select all" ticks the row.
    [[nodiscard]] bool isTickedAlong(int row) const;
    /// The rows that do not have this tick.
    [[nodiscard]] std::vector<int> rowsWithout(bool isSelected) const;

    struct Figures {
        int selected = 0;
        int shown = 0; ///< selected rows
        std::int64_t bytes = 0;
        bool hasNotes = false;
        bool isInSets = false; ///< whether any entry belongs to a file that is kept
    };
    /// `listed`: the selectable paths of all findings.
    [[nodiscard]] Figures figures(const PathTree& listed) const;

    /// Marks the entries that are among `after` too; nothing unless those are a part of these, in their
    /// order.
    [[nodiscard]] std::optional<std::vector<bool>> keptIn(const std::vector<FileEntry>& after) const;
    /// Marks those of `entries` that are there already; nothing unless all of these are among them.
    [[nodiscard]] std::optional<std::vector<bool>> thoseIn(const std::vector<FileEntry>& entries) const;
    struct Piece {
        int first = 0;
        int last = 0;
    };
    /// Consecutive rows whose entries are not kept.
    [[nodiscard]] std::vector<Piece> goneRows(const std::vector<bool>& isKept) const;
    /// Removes entries that no row shows any more.
    void drop(const std::vector<bool>& isKept);
    /// Takes more entries, among them those that are there; the rows stay what they are.
    void grow(const std::vector<FileEntry>& entries, const std::vector<bool>& wasThere);

private:
    [[nodiscard]] std::size_t index(int row) const
    {
        return static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)]);
    }

    std::vector<FileEntry> m_entries;
    Rating m_rating = Rating::review;
    std::vector<bool> m_isSelected;         ///< of each entry
    std::vector<EntryOrder::Words> m_words; ///< of each entry; built when first needed
    std::vector<int> m_rows;
};

} // namespace orlen
