#include "cli/ItemList.h"

#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/CliTexts.h"
#include "cli/FindingTable.h"
#include "cli/Session.h"
#include "cli/Table.h"
#include "model/ModelTexts.h"
#include "model/PathSelection.h"
#include "model/Words.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string_view>
#include <unordered_set>
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
        chip = {shown(label(*entry.rating)), FindingTable::style(*entry.rating)};
    // The chip comes before the path, which may be wider than the terminal.
    table.addRow({{Words::figures().bytes(entry.size)}, chip, {Format::shownPath(entry.path)}});
    if (!entry.notes.empty())
        table.addLine(kPathColumn + 1, {"  " + shown(Format::displayable(noteOf(entry))), Style::dim});
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
        table.addLine(0, {shown(Format::displayable(section.title)), Style::bold});
        for (const FileEntry& entry : section.entries) {
            addEntry(table, entry);
            entries.push_back(&entry);
        }
    }
    const PathSelection::Amount amount = PathSelection::amountOf(std::move(entries));
    list.m_count = amount.items;
    list.m_bytes = amount.bytes;
    list.m_text = list.m_colours.styled(Style::bold, shown(Format::displayable(plan.title))) + '\n' +
                  table.text(list.m_colours, std::nullopt);
    return list;
}

ItemList ItemList::toPropose(const CleanPlan& plan)
{
    constexpr std::size_t kShown = 15;
    ItemList list(Beside::nothing);
    std::vector<const FileEntry*> entries;
    for (const PlanSection& section : plan.sections) {
        for (const FileEntry& entry : section.entries)
            entries.push_back(&entry);
    }
    std::ranges::stable_sort(entries, std::greater{}, [](const FileEntry* entry) {
        return std::pair(entry->size, entry->rating.has_value());
    });
    // Several findings may list one.
    std::unordered_set<std::string_view> paths;
    std::erase_if(entries, [&](const FileEntry* entry) { return !paths.insert(entry->path).second; });
    Table table = itemTable();
    for (std::size_t i = 0; i < std::min(entries.size(), kShown); ++i)
        addEntry(table, *entries[i]);
    const auto more = std::ssize(entries) - static_cast<std::ptrdiff_t>(kShown);
    const PathSelection::Amount amount = PathSelection::amountOf(std::move(entries));
    list.m_count = amount.items;
    list.m_bytes = amount.bytes;
    list.m_text = table.text(list.m_colours, std::nullopt);
    if (more > 0)
        list.m_text +=
            "  " + shown(Message{CliTexts::kMore, {{"count", static_cast<std::int64_t>(more)}}}) + '\n';
    return list;
}

ItemList ItemList::toRestore(const CleanRecord& record, Beside beside)
{
    ItemList list(beside);
    Table table = itemTable();
    for (const TrashedItem& item : record.items) {
        if (item.restored)
            continue;
        table.addRow({{Words::figures().bytes(item.size)}, {}, {Format::shownPath(item.original)}});
        ++list.m_count;
        list.m_bytes = checkedAdd(list.m_bytes, item.size);
    }
    const std::string title = shown(Format::displayable(AppTexts::titleOf(record.title)));
    list.m_text = list.m_colours.styled(Style::bold, title) + shown(ModelTexts::kBetweenFacts) +
                  Words::figures().dateAndTime(record.date) + "\n\n" +
                  table.text(list.m_colours, std::nullopt);
    return list;
}

Message ItemList::summary(const Text& text) const
{
    return {text, {{"count", m_count}, {"size", Bytes{m_bytes}}}};
}

void ItemList::show(Session& session) const
{
    const std::string text = m_text + '\n' + shown(summary(CliTexts::kItemsOfSize)) + "\n\n";
    if (m_beside == Beside::nothing)
        Session::print(text);
    else
        session.note(text);
}

} // namespace orlen
