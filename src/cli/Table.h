#pragma once

#include "cli/Colours.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// Rows of text in aligned columns, measured by the width of characters on a terminal.
class Table {
public:
    enum class Kind {
        text,   ///< left-aligned
        number, ///< right-aligned
        path,   ///< left-aligned, shortened in the middle if the table is too wide; at most one column
    };
    struct Column {
        std::string heading;
        Kind kind = Kind::text;
    };
    /// One line of displayable text.
    struct Cell {
        std::string text;
        Style style = Style::plain;
    };

    /// A bar as long as the part's share of the whole; empty for nothing, at least one block for anything
    /// else.
    [[nodiscard]] static std::string bar(std::int64_t part, std::int64_t whole);

    explicit Table(std::vector<Column> columns) : m_columns(std::move(columns)) {}

    /// Missing cells at the end are left empty.
    void addRow(std::vector<Cell> cells);
    /// A line below the row, starting at a column and cut at the end if it is too wide.
    void addLine(std::size_t column, Cell cell);
    void addGap();

    /// All lines, with headings if any column has one. No `width` means no limit.
    [[nodiscard]] std::string text(const Colours& colours, std::optional<int> width) const;

private:
    struct Row {
        enum class Shape { cells, line, gap } shape;
        std::vector<Cell> cells;
        std::size_t column = 0;
    };
    using Widths = std::vector<int>;

    [[nodiscard]] Widths widths(std::optional<int> limit) const;
    [[nodiscard]] std::string rowText(const std::vector<Cell>& cells, const Widths& widths,
                                      const Colours& colours) const;
    [[nodiscard]] static std::string lineText(const Row& row, const Widths& widths, std::optional<int> limit,
                                              const Colours& colours);
    [[nodiscard]] std::vector<Cell> headings() const;

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
};

} // namespace orlen
