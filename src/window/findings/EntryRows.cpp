#include "window/findings/EntryRows.h"

#include "model/PathSelection.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orlen {

namespace {

/// Marks the entries of `all` that are in `part`; nothing unless `part` is a subsequence of `all`.
std::optional<std::vector<bool>> marked(const std::vector<FileEntry>& all, const std::vector<FileEntry>& part)
{
    std::vector<bool> marks(all.size());
    std::size_t next = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        marks[i] = next < part.size() && all[i] == part[next];
        if (marks[i])
            ++next;
    }
    if (next < part.size())
        return std::nullopt;
    return marks;
}

} // namespace

EntryRows::EntryRows(std::vector<FileEntry> entries, Rating rating)
    : m_entries(std::move(entries)), m_rating(rating), m_isSelected(m_entries.size())
{
}

std::vector<int> EntryRows::wanted(const EntryOrder::Wish& wish)
{
    if (m_words.empty() && EntryOrder::needsWords(wish))
        m_words = EntryOrder::wordsOf(m_entries);
    return EntryOrder::inSets(EntryOrder::rows(m_entries, m_words, wish, m_rating), m_entries);
}

void EntryRows::readSelection(const std::set<std::string>& selection)
{
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_isSelected[i] = selection.contains(m_entries[i].path);
}

bool EntryRows::isTickedAlong(int row) const
{
    return orlen::isTickedAlong(at(row), m_rating);
}

std::vector<int> EntryRows::rowsWithout(bool isSelected) const
{
    std::vector<int> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::erase_if(rows, [&](int row) { return this->isSelected(row) == isSelected; });
    return rows;
}

EntryRows::Figures EntryRows::figures(const PathTree& listed) const
{
    Figures figures;
    std::vector<const FileEntry*> selected;
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        figures.hasNotes = figures.hasNotes || !m_entries[i].notes.empty();
        figures.isInSets = figures.isInSets || m_entries[i].kept.has_value();
        if (m_isSelected[i])
            selected.push_back(&m_entries[i]);
    }
    figures.selected = static_cast<int>(selected.size());
    figures.bytes = selected.empty() ? 0 : PathSelection::sizeOf(std::move(selected), listed);
    const auto isSelected = [this](int entry) { return m_isSelected[static_cast<std::size_t>(entry)]; };
    figures.shown = static_cast<int>(std::ranges::count_if(m_rows, isSelected));
    return figures;
}

std::optional<std::vector<bool>> EntryRows::keptIn(const std::vector<FileEntry>& after) const
{
    return marked(m_entries, after);
}

std::optional<std::vector<bool>> EntryRows::thoseIn(const std::vector<FileEntry>& entries) const
{
    return marked(entries, m_entries);
}

std::vector<EntryRows::Piece> EntryRows::goneRows(const std::vector<bool>& isKept) const
{
    std::vector<Piece> pieces;
    for (int row = 0; row < static_cast<int>(m_rows.size()); ++row) {
        if (isKept[index(row)])
            continue;
        if (pieces.empty() || pieces.back().last != row - 1)
            pieces.push_back({row, row});
        else
            pieces.back().last = row;
    }
    return pieces;
}

void EntryRows::drop(const std::vector<bool>& isKept)
{
    std::vector<int> newIndex(isKept.size());
    std::size_t next = 0;
    for (std::size_t i = 0; i < isKept.size(); ++i) {
        if (!isKept[i])
            continue;
        newIndex[i] = static_cast<int>(next);
        if (next != i)
            m_entries[next] = std::move(m_entries[i]);
        m_isSelected[next] = m_isSelected[i];
        ++next;
    }
    m_entries.resize(next);
    m_isSelected.resize(next);
    m_words.clear();
    for (int& row : m_rows)
        row = newIndex[static_cast<std::size_t>(row)];
}

void EntryRows::grow(const std::vector<FileEntry>& entries, const std::vector<bool>& wasThere)
{
    std::vector<int> newIndex;
    for (std::size_t i = 0; i < wasThere.size(); ++i) {
        if (wasThere[i])
            newIndex.push_back(static_cast<int>(i));
    }
    m_entries = entries;
    m_words.clear();
    m_isSelected.assign(m_entries.size(), false);
    for (int& row : m_rows)
        row = newIndex[static_cast<std::size_t>(row)];
}

} // namespace orlen
