#include "window/apps/LeftoverListModel.h"

#include "platform/text/PathText.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

LeftoverListModel::LeftoverListModel(AppModel& app) : m_app(app)
{
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &LeftoverListModel::followSheet);
    connect(m_app.exclusions(), &ExclusionList::changed, this, &LeftoverListModel::followExclusions);
}

std::vector<LeftoverListModel::Row> LeftoverListModel::offered() const
{
    const Exclusions& exclusions = m_app.exclusions()->current();
    std::vector<Row> rows = m_all;
    std::erase_if(rows, [&](const Row& row) { return exclusions.excludes(row.entry.path) != nullptr; });
    return rows;
}

void LeftoverListModel::followExclusions()
{
    for (Row& row : m_all) {
        const auto shown = std::ranges::find(m_rows, row.entry, &Row::entry);
        if (shown != m_rows.end())
            row.isChecked = shown->isChecked;
    }
    setRows(m_rows, offered(), [](const Row& row) { return row.entry.path; });
    Q_EMIT changed();
    Q_EMIT selectionChanged();
}

void LeftoverListModel::showRows(std::vector<Row> rows)
{
    m_all = std::move(rows);
    resetRows(m_rows, offered());
    Q_EMIT changed();
    Q_EMIT selectionChanged();
}

void LeftoverListModel::setOpen(bool isOpen)
{
    if (std::exchange(m_isOpen, isOpen) != isOpen)
        Q_EMIT openChanged();
}

void LeftoverListModel::close()
{
    setOpen(false);
}

void LeftoverListModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    bool& isChecked = m_rows[static_cast<std::size_t>(row)].isChecked;
    isChecked = !isChecked;
    rowsChanged(row, row, Role::checked);
    Q_EMIT selectionChanged();
}

void LeftoverListModel::toggleAll()
{
    if (m_rows.empty())
        return;
    const bool isChecked = checkState() != Qt::Checked;
    for (Row& row : m_rows)
        row.isChecked = isChecked;
    allChanged(Role::checked);
    Q_EMIT selectionChanged();
}

void LeftoverListModel::reveal(int row) const
{
    if (hasRow(row))
        Reveal::show(m_rows[static_cast<std::size_t>(row)].entry.path);
}

std::optional<RowSubject> LeftoverListModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    return RowSubject{.path = m_rows[static_cast<std::size_t>(row)].entry.path, .isTickable = true};
}

void LeftoverListModel::tickIn(const std::string& folder)
{
    for (Row& row : m_rows) {
        if (!row.entry.isTickedAlone && PathText::isAtOrBelow(row.entry.path, folder))
            row.isChecked = true;
    }
    allChanged(Role::checked);
    Q_EMIT selectionChanged();
}

void LeftoverListModel::review()
{
    if (!m_isOpen || !isReady())
        return;
    CleanPlan wanted = plan();
    close();
    m_reviewed = wanted.id;
    WindowState::of(m_app).setSheet(PlanSheet{std::move(wanted)});
}

void LeftoverListModel::followSheet()
{
    const auto& sheet = WindowState::of(m_app).sheet();
    const auto* review = sheet ? std::get_if<PlanSheet>(&*sheet) : nullptr;
    if (!m_reviewed || (review != nullptr && review->plan.id == *m_reviewed))
        return;
    m_reviewed.reset();
    // A confirmed review also closes, and the clean-up begins only after that.
    QMetaObject::invokeMethod(this, &LeftoverListModel::resume, Qt::QueuedConnection);
}

/// Shows the sheet again as it was.
void LeftoverListModel::resume()
{
    if (m_isOpen || WindowState::of(m_app).sheet() || m_app.cleanUps()->cleaning())
        return;
    setOpen(true);
    resumed();
}

std::vector<FileEntry> LeftoverListModel::chosen() const
{
    std::vector<FileEntry> entries;
    for (const Row& row : m_rows) {
        if (row.isChecked)
            entries.push_back(row.entry);
    }
    return entries;
}

Qt::CheckState LeftoverListModel::checkState() const
{
    return checkStateOf(std::ranges::count(m_rows, true, &Row::isChecked), m_rows.size());
}

QString LeftoverListModel::chosenText() const
{
    return DisplayText::selectedOf(std::ssize(chosen()), length());
}

QVariant LeftoverListModel::value(std::size_t number, int role) const
{
    const auto& [entry, isChecked] = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::nameOf(entry.path);
    case Role::folder:
        return DisplayText::folderOf(entry.path);
    case Role::size:
        return DisplayText::size(entry.size);
    case Role::note:
        return DisplayText::text(noteOf(entry));
    case Role::explanation:
        return QString();
    case Role::checked:
        return isChecked;
    }
    return {};
}

} // namespace orlen
