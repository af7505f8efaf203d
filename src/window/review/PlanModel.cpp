#include "window/review/PlanModel.h"

#include "model/FindingKind.h"
#include "window/lists/DisplayText.h"
#include "window/lists/FileSymbol.h"
#include "window/lists/PathCode.h"
#include "window/lists/RatingValue.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <algorithm>

namespace orlen {

namespace {

constexpr int kHeading = -1;
constexpr QRgb kUsualTone = 0xff5b5fe0; // for a section that matches no kind of finding

std::size_t place(int number)
{
    return static_cast<std::size_t>(number);
}

QColor toneOf(const PlanSection& section)
{
    const auto kind = kindFromRaw(section.id);
    return kind ? DisplayText::colour(meta(*kind).category) : QColor(kUsualTone);
}

} // namespace

PlanModel::PlanModel(AppModel& app) : m_app(app), m_folders(new FolderLookup(this))
{
    connect(m_folders, &FolderLookup::answered, this, [this] { allChanged(Role::symbol, Role::thumbnail); });
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &PlanModel::follow);
    follow();
}

void PlanModel::follow()
{
    if (!WindowState::of(m_app).sheet())
        return;
    const auto* sheet = std::get_if<PlanSheet>(&*WindowState::of(m_app).sheet());
    if (sheet != nullptr && (!m_plan || m_plan->id != sheet->plan.id))
        show(sheet->plan);
}

void PlanModel::show(const CleanPlan& plan)
{
    beginResetModel();
    m_plan = plan;
    m_ticks = PlanTicks(plan);
    m_rows.clear();
    m_isFolded.assign(plan.sections.size(), false);
    m_entryCount = 0;
    m_hasNotes = false;
    for (int number = 0; number < static_cast<int>(m_plan->sections.size()); ++number) {
        const PlanSection& section = m_plan->sections[place(number)];
        const int entries = static_cast<int>(section.entries.size());
        for (int entry = kHeading; entry < entries; ++entry)
            m_rows.push_back({number, entry});
        m_entryCount += entries;
        m_hasNotes = m_hasNotes || std::any_of(section.entries.begin(), section.entries.end(),
                                               [](const FileEntry& entry) { return !entry.notes.empty(); });
    }
    endResetModel();
    Q_EMIT planChanged();
    Q_EMIT figuresChanged();
}

QString PlanModel::title() const
{
    return m_plan ? DisplayText::text(m_plan->title) : QString();
}

void PlanModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    const auto [number, entry] = at(row);
    const bool isChecked = checkState(at(row)) != Qt::Checked;
    if (entry == kHeading)
        m_ticks.setSection(place(number), isChecked);
    else
        m_ticks.set(place(number), place(entry), isChecked);
    followTicks();
}

void PlanModel::checkAll()
{
    setAllChecked(true);
}

void PlanModel::uncheckAll()
{
    setAllChecked(false);
}

void PlanModel::setAllChecked(bool isChecked)
{
    if (m_rows.empty())
        return;
    m_ticks.setAll(isChecked);
    followTicks();
}

/// Rows in other sections may show the same path or one inside it.
void PlanModel::followTicks()
{
    allChanged(Role::mark, Role::folder, Role::size);
    Q_EMIT figuresChanged();
}

void PlanModel::fold(int row)
{
    if (!hasRow(row) || at(row).entry != kHeading)
        return;
    const int number = at(row).section;
    const int entries = static_cast<int>(section(number).entries.size());
    const auto after = m_rows.begin() + row + 1;
    if (m_isFolded[place(number)]) {
        std::vector<Row> shown(place(entries));
        for (int entry = 0; entry < entries; ++entry)
            shown[place(entry)] = {number, entry};
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
    // A section's rows follow its heading in order.
    return row - at(row).entry - 1;
}

const PlanSection& PlanModel::section(int number) const
{
    return m_plan->sections[place(number)];
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
        return m_ticks.isTicked(number, place(row.entry)) ? Qt::Checked : Qt::Unchecked;
    return checkStateOf(m_ticks.count(number), section(row.section).entries.size());
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
        return toneOf(section(row.section));
    return isHeading ? sectionData(row.section, wanted) : entryData(row, wanted);
}

QVariant PlanModel::sectionData(int number, Role role) const
{
    const PlanSection& shown = section(number);
    if (role == Role::name)
        return DisplayText::text(shown.title);
    if (role == Role::folder)
        return DisplayText::selectedOf(m_ticks.count(place(number)),
                                       static_cast<std::int64_t>(shown.entries.size()));
    if (role == Role::size)
        return DisplayText::size(m_ticks.bytes(place(number)));
    if (role == Role::symbol)
        return DisplayText::text(shown.symbol);
    return role == Role::rating ? QVariant::fromValue(RatingValue()) : QString();
}

QVariant PlanModel::entryData(const Row& row, Role role) const
{
    const FileEntry& entry = section(row.section).entries[place(row.entry)];
    if (role == Role::name)
        return DisplayText::nameOf(entry.path);
    if (role == Role::folder)
        return DisplayText::folderOf(entry.path);
    if (role == Role::size)
        return DisplayText::size(entry.size);
    if (role == Role::date)
        return DisplayText::dateOf(entry);
    if (role == Role::note)
        return DisplayText::text(noteOf(entry));
    const bool isFolder = m_folders->isFolder(entry.path);
    if (role == Role::symbol)
        return isFolder ? FileSymbol::ofFolder() : FileSymbol::ofName(entry.path);
    if (role == Role::thumbnail)
        return isFolder ? QString() : Thumbnails::source(entry.path);
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

void PlanModel::confirm()
{
    if (!isConfirmable())
        return;
    WindowState::of(m_app).setSheet(std::nullopt);
    m_app.cleanUps()->confirm(m_ticks.ticked(*m_plan));
}

} // namespace orlen
