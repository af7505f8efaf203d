#include "window/review/PlanModel.h"

#include "model/Finding.h"
#include "platform/text/PathText.h"
#include "window/lists/DisplayText.h"
#include "window/lists/FileSymbol.h"
#include "window/lists/LeftUnticked.h"
#include "window/lists/PathCode.h"
#include "window/lists/RatingValue.h"
#include "window/lists/Remembered.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

constexpr int kHeading = -1;
const QString kReviewOrder = QStringLiteral("review");
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
    connect(m_app.exclusions(), &ExclusionList::changed, this, &PlanModel::followExclusions);
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
    m_isFolded.assign(plan.sections.size(), false);
    m_excluded.clear();
    m_checkedBefore.clear();
    exclude();
    m_entries = PlanEntries(plan);
    m_wish = Remembered::order(kReviewOrder);
    arrange();
    endResetModel();
    Q_EMIT orderChanged();
    Q_EMIT planChanged();
    Q_EMIT figuresChanged();
}

std::vector<PlanModel::Row> PlanModel::entriesOf(int number) const
{
    std::vector<Row> rows;
    for (const int entry : m_entries.shown(place(number)))
        rows.push_back({number, entry});
    return rows;
}

std::vector<PlanTicks::Place> PlanModel::placesOf(int number) const
{
    std::vector<PlanTicks::Place> places;
    for (const int entry : m_entries.shown(place(number)))
        places.push_back({place(number), place(entry)});
    return places;
}

std::vector<PlanModel::Row> PlanModel::wantedRows() const
{
    std::vector<Row> rows;
    for (int number = 0; number < static_cast<int>(m_plan->sections.size()); ++number) {
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
    m_entries.arrange(*m_plan, m_excluded, m_wish);
    m_rows = wantedRows();
}

void PlanModel::rearrange()
{
    if (m_plan) {
        beginResetModel();
        arrange();
        endResetModel();
    }
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

std::vector<PlanTicks::Place> PlanModel::placesOf(const Paths& paths) const
{
    std::vector<PlanTicks::Place> places;
    for (std::size_t number = 0; number < m_plan->sections.size(); ++number) {
        const std::vector<FileEntry>& entries = m_plan->sections[number].entries;
        for (std::size_t entry = 0; entry < entries.size(); ++entry) {
            if (paths.contains(entries[entry].path))
                places.push_back({number, entry});
        }
    }
    return places;
}

/// Takes out of the ticks what is excluded now, and back what no longer is.
void PlanModel::exclude()
{
    const Paths before = std::exchange(m_excluded, m_app.exclusions()->current().excludedIn(*m_plan));
    Paths added;
    Paths returned;
    std::ranges::set_difference(m_excluded, before, std::inserter(added, added.end()));
    std::ranges::set_difference(before, m_excluded, std::inserter(returned, returned.end()));
    std::erase_if(returned, [this](const std::string& path) { return m_checkedBefore.erase(path) == 0; });
    for (const PlanTicks::Place& at : placesOf(added)) {
        if (m_ticks.isTicked(at.section, at.entry))
            m_checkedBefore.insert(m_plan->sections[at.section].entries[at.entry].path);
    }
    m_ticks.leaveOut(placesOf(added));
    m_ticks.takeBack(placesOf(returned));
}

void PlanModel::followExclusions()
{
    if (!m_plan)
        return;
    exclude();
    m_entries.arrange(*m_plan, m_excluded, m_wish);
    setRows(m_rows, wantedRows(),
            [](const Row& row) { return std::to_string(row.section) + ' ' + std::to_string(row.entry); });
    Q_EMIT planChanged();
    followTicks();
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
    if (entry == kHeading && m_wish.filter.isEmpty())
        m_ticks.setSection(place(number), isChecked);
    else if (entry == kHeading)
        setShown(number, isChecked);
    else
        m_ticks.set(place(number), place(entry), isChecked);
    m_ticks.leaveOut(placesOf(m_excluded));
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
    if (m_wish.filter.isEmpty())
        m_ticks.setAll(isChecked);
    for (int number = 0; !m_wish.filter.isEmpty() && number < static_cast<int>(m_isFolded.size()); ++number)
        setShown(number, isChecked);
    m_ticks.leaveOut(placesOf(m_excluded));
    followTicks();
}

/// With a filter, only what matches it.
void PlanModel::setShown(int number, bool isChecked)
{
    if (isChecked)
        m_ticks.tick(placesOf(number));
    else
        m_ticks.leaveOut(placesOf(number));
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
    const std::vector<int>& shown = m_entries.shown(number);
    if (m_wish.filter.isEmpty())
        return checkStateOf(m_ticks.count(number), shown.size());
    const auto isTicked = [&](int entry) { return m_ticks.isTicked(number, place(entry)); };
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
        return toneOf(section(row.section));
    return isHeading ? sectionData(row.section, wanted) : entryData(row, wanted);
}

QVariant PlanModel::sectionData(int number, Role role) const
{
    const PlanSection& shown = section(number);
    if (role == Role::name)
        return DisplayText::text(shown.title);
    if (role == Role::folder)
        return DisplayText::selectedOf(m_ticks.count(place(number)), m_entries.count(place(number)));
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

std::optional<RowSubject> PlanModel::subject(int row) const
{
    const FileEntry* entry = entryAt(row);
    if (entry == nullptr)
        return std::nullopt;
    return RowSubject{.path = entry->path, .isTickable = true};
}

void PlanModel::tickIn(const std::string& folder)
{
    std::vector<PlanTicks::Place> places;
    Paths left;
    for (int number = 0; m_plan && number < static_cast<int>(m_plan->sections.size()); ++number) {
        for (const Row& row : entriesOf(number)) {
            const FileEntry& entry = section(number).entries[place(row.entry)];
            if (m_ticks.isTicked(place(number), place(row.entry)) ||
                !PathText::isAtOrBelow(entry.path, folder))
                continue;
            if (isTickedAlong(entry, section(number).rating.value_or(Rating::review)))
                places.push_back({place(number), place(row.entry)});
            else
                left.insert(entry.path);
        }
    }
    m_ticks.tick(places);
    LeftUnticked::say(m_app, left.size());
    followTicks();
}

void PlanModel::confirm()
{
    if (!isConfirmable())
        return;
    WindowState::of(m_app).setSheet(std::nullopt);
    m_app.cleanUps()->confirm(m_ticks.ticked(*m_plan));
}

} // namespace orlen
