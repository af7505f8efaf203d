#include "window/review/PlanModel.h"

#include "window/findings/EntryCell.h"
#include "window/lists/DisplayText.h"
#include "window/lists/LeftUnticked.h"
#include "window/lists/PathCode.h"
#include "window/lists/RatingValue.h"
#include "window/lists/Remembered.h"
#include "window/review/KeptApart.h"
#include "window/review/PlanSectionCell.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace orlen {

namespace {

constexpr int kHeading = -1;
const QString kReviewOrder = QStringLiteral("review");

std::size_t place(int number)
{
    return static_cast<std::size_t>(number);
}

} // namespace

PlanModel::PlanModel(AppModel& app) : m_app(app), m_folders(new FolderLookup(this))
{
    connect(m_folders, &FolderLookup::answered, this, [this] { allChanged(Role::symbol, Role::thumbnail); });
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &PlanModel::follow);
    connect(m_app.exclusions(), &ExclusionList::changed, this, &PlanModel::followExclusions);
    follow();
}

void PlanModel::follow()
{
    if (!WindowState::of(m_app).sheet())
        return;
    const auto* sheet = std::get_if<PlanSheet>(&*WindowState::of(m_app).sheet());
    if (sheet != nullptr && m_choice.plan().id != sheet->plan.id)
        show(sheet->plan);
}

void PlanModel::show(const CleanPlan& plan)
{
    beginResetModel();
    m_choice = PlanChoice(plan, m_app.exclusions()->current());
    m_keptApart = m_choice.keptApart();
    m_isFolded.assign(plan.sections.size(), false);
    m_entries = PlanEntries(plan);
    m_wish = Remembered::order(kReviewOrder);
    arrange();
    endResetModel();
    Q_EMIT orderChanged();
    Q_EMIT planChanged();
    Q_EMIT figuresChanged();
    if (m_keptApart > 0)
        KeptApart::say(m_app);
}

std::vector<PlanModel::Row> PlanModel::entriesOf(int number) const
{
    std::vector<Row> rows;
    for (const int entry : m_entries.shown(place(number)))
        rows.push_back({number, entry});
    return rows;
}

std::vector<PlanModel::Row> PlanModel::wantedRows() const
{
    std::vector<Row> rows;
    for (int number = 0; number < static_cast<int>(m_choice.plan().sections.size()); ++number) {
        const std::vector<Row> entries = entriesOf(number);
        if (entries.empty())
            continue;
        rows.push_back({number, kHeading});
        if (!m_isFolded[place(number)])
            rows.insert(rows.end(), entries.begin(), entries.end());
    }
    return rows;
}

void PlanModel::arrange()
{
    m_entries.arrange(m_choice, m_wish);
    m_rows = wantedRows();
}

void PlanModel::rearrange()
{
    beginResetModel();
    arrange();
    endResetModel();
    Q_EMIT orderChanged();
}

void PlanModel::setFilter(const QString& filter)
{
    if (m_wish.filter == filter)
        return;
    m_wish.filter = filter;
    rearrange();
}

void PlanModel::sortBy(int key)
{
    m_wish = EntryOrder::pressed(m_wish, static_cast<EntryOrder::Key>(key));
    Remembered::setOrder(kReviewOrder, m_wish);
    rearrange();
}

void PlanModel::followExclusions()
{
    m_choice.exclude(m_app.exclusions()->current());
    m_entries.arrange(m_choice, m_wish);
    setRows(m_rows, wantedRows(),
            [](const Row& row) { return std::to_string(row.section) + ' ' + std::to_string(row.entry); });
    Q_EMIT planChanged();
    followTicks();
}

QString PlanModel::title() const
{
    return m_choice.plan().sections.empty() ? QString() : DisplayText::text(m_choice.plan().title);
}

void PlanModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    const auto [number, entry] = at(row);
    const bool isChecked = checkState(at(row)) != Qt::Checked;
    if (entry == kHeading && m_wish.filter.isEmpty())
        m_choice.setSection(place(number), isChecked);
    else if (entry == kHeading)
        m_choice.set(m_entries.places(place(number)), isChecked); // only what matches the filter
    else
        m_choice.set({place(number), place(entry)}, isChecked);
    followTicks();
}

void PlanModel::setAllChecked(bool isChecked)
{
    if (m_rows.empty())
        return;
    if (m_wish.filter.isEmpty())
        m_choice.setAll(isChecked);
    for (int number = 0; !m_wish.filter.isEmpty() && number < static_cast<int>(m_isFolded.size()); ++number)
        m_choice.set(m_entries.places(place(number)), isChecked);
    followTicks();
}

/// Rows in other sections may show the same path or one inside it.
void PlanModel::followTicks()
{
    allChanged(Role::mark, Role::folder, Role::size);
    Q_EMIT figuresChanged();
    if (std::exchange(m_keptApart, m_choice.keptApart()) != m_choice.keptApart())
        KeptApart::say(m_app);
}

void PlanModel::fold(int row)
{
    if (!hasRow(row) || at(row).entry != kHeading)
        return;
    const int number = at(row).section;
    const std::vector<Row> shown = entriesOf(number);
    const int entries = static_cast<int>(shown.size());
    const auto after = m_rows.begin() + row + 1;
    if (m_isFolded[place(number)]) {
        beginInsertRows({}, row + 1, row + entries);
        m_rows.insert(after, shown.begin(), shown.end());
        endInsertRows();
    } else {
        beginRemoveRows({}, row + 1, row + entries);
        m_rows.erase(after, after + entries);
        endRemoveRows();
    }
    m_isFolded[place(number)].flip();
    rowsChanged(row, row, Role::folded);
}

void PlanModel::setFolded(int row, bool isFolded)
{
    if (hasRow(row) && m_isFolded[place(at(row).section)] != isFolded)
        fold(row);
}

int PlanModel::headingOf(int row) const
{
    if (!hasRow(row))
        return -1;
    while (at(row).entry != kHeading)
        --row;
    return row;
}

const PlanSection& PlanModel::section(int number) const
{
    return m_choice.plan().sections[place(number)];
}

const FileEntry* PlanModel::entryAt(int row) const
{
    if (!hasRow(row) || at(row).entry == kHeading)
        return nullptr;
    return &section(at(row).section).entries[place(at(row).entry)];
}

Qt::CheckState PlanModel::checkState(const Row& row) const
{
    const std::size_t number = place(row.section);
    if (row.entry != kHeading)
        return m_choice.isTicked({number, place(row.entry)}) ? Qt::Checked : Qt::Unchecked;
    const std::vector<int>& shown = m_entries.shown(number);
    if (m_wish.filter.isEmpty())
        return checkStateOf(m_choice.ticks().count(number), shown.size());
    const auto isTicked = [&](int entry) { return m_choice.isTicked({number, place(entry)}); };
    return checkStateOf(std::ranges::count_if(shown, isTicked), shown.size());
}

QVariant PlanModel::value(std::size_t number, int role) const
{
    if (role < static_cast<int>(Role::heading))
        return {};
    const Row& row = m_rows[number];
    const bool isHeading = row.entry == kHeading;
    const auto wanted = static_cast<Role>(role);
    if (wanted == Role::heading)
        return isHeading;
    if (wanted == Role::mark)
        return checkState(row);
    if (wanted == Role::folded)
        return bool{m_isFolded[place(row.section)]};
    if (wanted == Role::tone)
        return PlanSectionCell::tone(section(row.section));
    if (!isHeading)
        return entryData(row, wanted);
    const std::size_t at = place(row.section);
    return PlanSectionCell::value(section(row.section), wanted, m_choice.ticks(), at, m_entries.count(at));
}

QVariant PlanModel::entryData(const Row& row, Role role) const
{
    const FileEntry& entry = section(row.section).entries[place(row.entry)];
    if (role != Role::rating)
        return EntryCell::value(entry, role, *m_folders);
    const std::optional<Rating> rating = entry.rating ? entry.rating : section(row.section).rating;
    return QVariant::fromValue(rating ? RatingValue(*rating) : RatingValue());
}

QString PlanModel::pathAt(int row) const
{
    const FileEntry* entry = entryAt(row);
    return entry == nullptr ? QString() : PathCode::of(entry->path);
}

QString PlanModel::sizeAt(int row) const
{
    const FileEntry* entry = entryAt(row);
    return entry == nullptr ? QString() : DisplayText::size(entry->size);
}

void PlanModel::reveal(int row) const
{
    if (const FileEntry* entry = entryAt(row))
        Reveal::show(entry->path);
}

std::optional<RowSubject> PlanModel::subject(int row) const
{
    const FileEntry* entry = entryAt(row);
    if (entry == nullptr)
        return std::nullopt;
    return RowSubject{.path = entry->path, .isTickable = true};
}

void PlanModel::tickIn(const std::string& folder)
{
    std::set<std::string> left;
    for (int number = 0; number < static_cast<int>(m_isFolded.size()); ++number)
        left.merge(m_choice.tickAlong(m_entries.places(place(number)), folder));
    LeftUnticked::say(m_app, left.size());
    followTicks();
}

void PlanModel::confirm()
{
    if (!isConfirmable())
        return;
    WindowState::of(m_app).setSheet(std::nullopt);
    m_app.cleanUps()->confirm(m_choice.ticked());
}

} // namespace orlen
