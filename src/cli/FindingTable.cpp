#include "cli/FindingTable.h"

#include "app/Format.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen::FindingTable {

namespace {

constexpr std::size_t kPathColumn = 1;

void addEntry(Table& table, const Finding& finding, const FileEntry& entry)
{
    const Rating rating = finding.effectiveRating(entry);
    Table::Cell chip;
    if (rating != finding.rating)
        chip = {std::string(label(rating)), style(rating)};
    table.addRow({chip, {Format::shownPath(entry.path)}, {byteCount(entry.size)}});
    if (entry.note)
        table.addLine(kPathColumn, {"  " + PathText::forDisplay(*entry.note), Style::dim});
}

void addFinding(Table& table, const Finding& finding, std::size_t limit)
{
    table.addRow({{std::string(label(finding.rating)), style(finding.rating)},
                  {finding.title, Style::bold},
                  {byteCount(finding.totalSize()), Style::bold},
                  {finding.safeSize() > 0 ? byteCount(finding.safeSize()) : "", Style::green},
                  {Format::grouped(static_cast<std::int64_t>(finding.items.size())), Style::dim}});
    const std::size_t shown = std::min(limit, finding.items.size());
    for (std::size_t i = 0; i < shown; ++i)
        addEntry(table, finding, finding.items[i]);
    if (const std::size_t rest = finding.items.size() - shown; rest > 0)
        table.addLine(kPathColumn,
                      {"… and " + Format::grouped(static_cast<std::int64_t>(rest)) + " more", Style::dim});
}

} // namespace

Style style(Rating rating)
{
    switch (rating) {
    case Rating::safe:
        return Style::green;
    case Rating::review:
        return Style::orange;
    case Rating::keep:
        return Style::blue;
    }
    return Style::plain;
}

Table of(const std::vector<Finding>& findings, std::size_t entries)
{
    using Kind = Table::Kind;
    Table table({{"Rating", Kind::text},
                 {"Finding", Kind::path},
                 {"Size", Kind::number},
                 {"Safe", Kind::number},
                 {"Entries", Kind::number}});
    for (const Finding& finding : findings) {
        table.addGap();
        addFinding(table, finding, entries);
    }
    return table;
}

} // namespace orlen::FindingTable
