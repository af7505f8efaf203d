#include "cli/FindingTable.h"

#include "app/Format.h"
#include "cli/CliTexts.h"
#include "model/Words.h"

#include <algorithm>
#include <iterator>

namespace orlen::FindingTable {

namespace {

constexpr std::size_t kPathColumn = 1;

void addEntry(Table& table, const Finding& finding, const FileEntry& entry)
{
    const Rating rating = finding.effectiveRating(entry);
    Table::Cell chip;
    if (rating != finding.rating)
        chip = {shown(label(rating)), style(rating)};
    table.addRow({chip, {Format::shownPath(entry.path)}, {Words::figures().bytes(entry.size)}});
    if (!entry.notes.empty())
        table.addLine(kPathColumn, {"  " + shown(Format::displayable(noteOf(entry))), Style::dim});
}

void addFinding(Table& table, const Finding& finding, std::size_t limit)
{
    const Figures& figures = Words::figures();
    table.addRow({{shown(label(finding.rating)), style(finding.rating)},
                  {shown(finding.title), Style::bold},
                  {figures.bytes(finding.totalSize()), Style::bold},
                  {finding.safeSize() > 0 ? figures.bytes(finding.safeSize()) : "", Style::green},
                  {figures.number(std::ssize(finding.items)), Style::dim}});
    const std::size_t listed = std::min(limit, finding.items.size());
    for (std::size_t i = 0; i < listed; ++i)
        addEntry(table, finding, finding.items[i]);
    if (const auto rest = static_cast<std::int64_t>(finding.items.size() - listed); rest > 0)
        table.addLine(kPathColumn, {shown(Message{CliTexts::kMore, {{"count", rest}}}), Style::dim});
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
    Table table({{shown(CliTexts::kRatingHeading), Kind::text},
                 {shown(CliTexts::kFindingHeading), Kind::path},
                 {shown(CliTexts::kSizeHeading), Kind::number},
                 {shown(CliTexts::kSafeHeading), Kind::number},
                 {shown(CliTexts::kEntriesHeading), Kind::number}});
    for (const Finding& finding : findings) {
        table.addGap();
        addFinding(table, finding, entries);
    }
    return table;
}

} // namespace orlen::FindingTable
