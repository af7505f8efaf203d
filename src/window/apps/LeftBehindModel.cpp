#include "window/apps/LeftBehindModel.h"

#include "platform/values/CheckedSum.h"
#include "tools/apps/LeftBehind.h"
#include "window/apps/AppInfoTexts.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace orlen {

LeftBehindModel::LeftBehindModel(AppModel& app) : LeftoverListModel(app), m_workers(*this) {}

void LeftBehindModel::setList(AppListModel* list)
{
    if (m_list == list)
        return;
    if (m_list != nullptr)
        m_list->disconnect(this);
    m_list = list;
    if (m_list != nullptr) {
        connect(m_list, &AppListModel::loadingChanged, this, &LeftBehindModel::search);
        search();
    }
    Q_EMIT listChanged();
}

void LeftBehindModel::search()
{
    // Without the list, what is installed would seem gone.
    if (m_list->isLoading())
        return;
    m_isLoading = true;
    Q_EMIT changed();
    m_workers.start(
        m_search,
        [listed = m_list->apps(), history = app().cleanUps()->history()](const std::stop_token& stop) {
            return LeftBehind::find(listed, history, std::chrono::system_clock::now(), stop);
        },
        [this](std::vector<FileEntry> entries) { take(std::move(entries)); });
}

void LeftBehindModel::take(std::vector<FileEntry> entries)
{
    // What was checked before stays so if it is still there.
    std::vector<Row> found;
    for (FileEntry& entry : entries) {
        const bool isChecked = std::ranges::any_of(
            rows(), [&](const Row& row) { return row.isChecked && row.entry.path == entry.path; });
        found.push_back({std::move(entry), isChecked});
    }
    m_isLoading = false;
    const bool isGone = found.empty();
    showRows(std::move(found));
    if (isGone)
        close();
}

void LeftBehindModel::show()
{
    setOpen(rowCount() > 0);
}

QString LeftBehindModel::summary() const
{
    std::int64_t bytes = 0;
    for (const Row& row : rows())
        bytes = checkedAdd(bytes, row.entry.size);
    return AppInfoTexts::foldersSummary(rows().size(), bytes);
}

QString LeftBehindModel::heading() const
{
    return summary();
}

QString LeftBehindModel::total() const
{
    std::int64_t bytes = 0;
    for (const FileEntry& entry : chosen())
        bytes = checkedAdd(bytes, entry.size);
    return bytes == 0 ? QString() : DisplayText::size(bytes);
}

CleanPlan LeftBehindModel::plan() const
{
    return LeftBehind::plan(chosen());
}

/// The place says which application it was, so it takes the place of the name.
QVariant LeftBehindModel::value(std::size_t number, int role) const
{
    const FileEntry& entry = rows()[number].entry;
    if (role == static_cast<int>(Role::name))
        return DisplayText::shortPath(entry.path);
    if (role == static_cast<int>(Role::explanation))
        return DisplayText::text(noteOf(entry));
    if (role == static_cast<int>(Role::folder) || role == static_cast<int>(Role::note))
        return QString();
    return LeftoverListModel::value(number, role);
}

} // namespace orlen
