#include "cli/Table.h"

#include "platform/text/DisplayWidth.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orlen {

namespace {

constexpr long kBarLength = 30;
constexpr int kGap = 2;
constexpr int kNarrowestPath = 16;

std::string spaces(int count)
{
    return std::string(static_cast<std::size_t>(std::max(count, 0)), ' ');
}

/// A column's width including the gap after it; an empty column takes none.
int taken(int width)
{
    return width == 0 ? 0 : width + kGap;
}

} // namespace

std::string Table::bar(std::int64_t part, std::int64_t whole)
{
    if (part <= 0 || whole <= 0)
        return {};
    const double share = static_cast<double>(part) / static_cast<double>(whole);
    const long length = std::clamp(std::lround(share * kBarLength), 1L, kBarLength);
    std::string bar;
    for (long i = 0; i < length; ++i)
        bar += "█";
    return bar;
}

void Table::addRow(std::vector<Cell> cells)
{
    cells.resize(m_columns.size());
    m_rows.push_back({Row::Shape::cells, std::move(cells)});
}

void Table::addLine(std::size_t column, Cell cell)
{
    m_rows.push_back({Row::Shape::line, {std::move(cell)}, column});
}

void Table::addGap()
{
    m_rows.push_back({Row::Shape::gap, {}});
}

std::vector<Table::Cell> Table::headings() const
{
    std::vector<Cell> cells;
    for (const Column& column : m_columns)
        cells.push_back({column.heading, Style::dim});
    return cells;
}

Table::Widths Table::widths(std::optional<int> limit) const
{
    Widths widths;
    for (const Column& column : m_columns)
        widths.push_back(DisplayWidth::columns(column.heading));
    for (const Row& row : m_rows) {
        for (std::size_t i = 0; row.shape == Row::Shape::cells && i < row.cells.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth::columns(row.cells[i].text));
    }
    const auto path = std::find_if(m_columns.begin(), m_columns.end(),
                                   [](const Column& column) { return column.kind == Kind::path; });
    if (limit && path != m_columns.end()) {
        int sum = -kGap;
        for (const int width : widths)
            sum += taken(width);
        int& shrinking = widths[static_cast<std::size_t>(path - m_columns.begin())];
        shrinking = std::max(std::min(shrinking, kNarrowestPath), shrinking - std::max(sum - *limit, 0));
    }
    return widths;
}

std::string Table::rowText(const std::vector<Cell>& cells, const Widths& widths, const Colours& colours) const
{
    std::string line;
    int owed = 0; // spaces needed only if another cell follows
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string shown = DisplayWidth::elidedMiddle(cells[i].text, widths[i]);
        const int free = widths[i] - DisplayWidth::columns(shown);
        const bool isRight = m_columns[i].kind == Kind::number;
        if (!shown.empty()) {
            line += spaces(owed + (isRight ? free : 0)) + colours.styled(cells[i].style, shown);
            owed = 0;
        }
        owed += taken(widths[i]) - (shown.empty() ? 0 : widths[i] - (isRight ? 0 : free));
    }
    return line + '\n';
}

std::string Table::lineText(const Row& row, const Widths& widths, std::optional<int> limit,
                            const Colours& colours)
{
    int indent = 0;
    for (std::size_t i = 0; i < row.column; ++i)
        indent += taken(widths[i]);
    const Cell& cell = row.cells.front();
    const std::string shown = limit ? DisplayWidth::elidedEnd(cell.text, *limit - indent) : cell.text;
    return spaces(indent) + colours.styled(cell.style, shown) + '\n';
}

std::string Table::text(const Colours& colours, std::optional<int> width) const
{
    const Widths fitted = widths(width);
    std::string text;
    const auto hasHeading = [](const Column& column) { return !column.heading.empty(); };
    if (std::any_of(m_columns.begin(), m_columns.end(), hasHeading))
        text += rowText(headings(), fitted, colours);
    for (const Row& row : m_rows) {
        switch (row.shape) {
        case Row::Shape::cells:
            text += rowText(row.cells, fitted, colours);
            break;
        case Row::Shape::line:
            text += lineText(row, fitted, width, colours);
            break;
        case Row::Shape::gap:
            text += '\n';
            break;
        }
    }
    return text;
}

} // namespace orlen
