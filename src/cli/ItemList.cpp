#include "cli/ItemList.h"

#include "app/Format.h"
#include "cli/FindingTable.h"
#include "cli/Session.h"
#include "cli/Table.h"
#include "model/PathSelection.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <utility>
#include <vector>

namespace orlen {

namespace {

constexpr std::size_t kPathColumn = 1;

Table itemTable()
{
    return Table({{"", Table::Kind::number}, {"", Table::Kind::text}, {"", Table::Kind::text}});
}

void addEntry(Table& table, const FileEntry& entry)
{
    Table::Cell chip;
    if (entry.rating)
        chip = {std::string(label(*entry.rating)), FindingTable::style(*entry.rating)};
    // The chip comes before the path, which may be wider than the terminal.
    table.addRow({{byteCount(entry.size)}, chip, {Format::shownPath(entry.path)}});
    if (entry.note)
        table.addLine(kPathColumn + 1, {"  " + PathText::forDisplay(*entry.note), Style::dim});
}

} // namespace

ItemList::ItemList(Beside beside)
    : m_beside(beside),
      m_colours(beside == Beside::nothing ? Terminal::Stream::output : Terminal::Stream::error)
{
}

ItemList ItemList::toClean(const CleanPlan& plan, Beside beside)
{
    ItemList list(beside);
    Table table = itemTable();
    std::vector<const FileEntry*> entries;
    for (const PlanSection& section : plan.sections) {
        table.addGap();
        table.addLine(0, {section.title, Style::bold});
        for (const FileEntry& entry : section.entries) {
            addEntry(table, entry);
            entries.push_back(&entry);
        }
    }
    const PathSelection::Amount amount = PathSelection::amountOf(std::move(entries));
    list.m_count = amount.items;
    list.m_bytes = amount.bytes;
    list.m_text = list.m_colours.styled(Style::bold, PathText::forDisplay(plan.title)) + '\n' +
                  table.text(list.m_colours, std::nullopt);
    return list;
}

ItemList ItemList::toRestore(const CleanRecord& record, Beside beside)
{
    ItemList list(beside);
    Table table = itemTable();
    for (const TrashedItem& item : record.items) {
        if (item.restored)
            continue;
        table.addRow({{byteCount(item.size)}, {}, {Format::shownPath(item.original)}});
        ++list.m_count;
        list.m_bytes = checkedAdd(list.m_bytes, item.size);
    }
    list.m_text = list.m_colours.styled(Style::bold, PathText::forDisplay(record.title)) + " · " +
                  Format::localTime(record.date) + "\n\n" + table.text(list.m_colours, std::nullopt);
    return list;
}

std::string ItemList::summary() const
{
    return Format::counted(m_count, "item") + " (" + byteCount(m_bytes) + ')';
}

void ItemList::show(Session& session) const
{
    const std::string text = m_text + "\n" + summary() + "\n\n";
    if (m_beside == Beside::nothing)
        Session::print(text);
    else
        session.note(text);
}

} // namespace orlen
