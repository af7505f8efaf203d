#include "window/apps/AppBatchModel.h"

#include "platform/files/FileStatus.h"
#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "tools/apps/Leftovers.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

using Removals = std::vector<Uninstall::Removal>;

/// Those that are still there. What two copies share stays even if both are wanted: one of them may be
/// unticked in the review.
Removals prepared(std::vector<AppInfo> wanted, const std::vector<AppInfo>& listed,
                  const std::stop_token& stop)
{
    std::erase_if(wanted, [](const AppInfo& app) { return !exists(app.path); });
    AppList::measure(
        wanted, [&](std::size_t number, std::int64_t bytes) { wanted[number].size = bytes; }, stop);
    Removals removals;
    removals.reserve(wanted.size());
    for (AppInfo& app : wanted) {
        std::vector<FileEntry> own = Leftovers::find(app, listed, stop).entries;
        const bool isRunning = AppList::isRunning(app);
        removals.push_back({std::move(app), std::move(own), isRunning});
    }
    return removals;
}

} // namespace

AppBatchModel::AppBatchModel(AppModel& app) : m_app(app), m_workers(*this) {}

void AppBatchModel::setList(AppListModel* list)
{
    if (m_list == list)
        return;
    if (m_list != nullptr)
        m_list->disconnect(this);
    follow();
    m_list = list;
    if (m_list != nullptr) {
        connect(m_list, &AppListModel::tickedChanged, this, &AppBatchModel::follow);
        connect(m_list, &AppListModel::summaryChanged, this, &AppBatchModel::changed);
    }
    Q_EMIT listChanged();
}

/// What is searched for is not what is ticked now.
void AppBatchModel::follow()
{
    m_search.drop();
    setBusy(false);
    Q_EMIT changed();
}

int AppBatchModel::count() const
{
    return m_list == nullptr ? 0 : static_cast<int>(m_list->ticked().size());
}

QString AppBatchModel::chosenText() const
{
    if (m_list == nullptr)
        return {};
    return DisplayText::selectedOf(count(), std::ranges::count_if(m_list->apps(), &AppInfo::isRemovable));
}

QString AppBatchModel::total() const
{
    std::int64_t bytes = 0;
    for (const AppInfo& app : m_list == nullptr ? std::vector<AppInfo>() : m_list->ticked())
        bytes = checkedAdd(bytes, app.total().value_or(0));
    return bytes == 0 ? QString() : DisplayText::size(bytes);
}

void AppBatchModel::review()
{
    if (m_isBusy || count() == 0)
        return;
    setBusy(true);
    m_workers.start(
        m_search,
        [wanted = m_list->ticked(), listed = m_list->apps()](const std::stop_token& stop) {
            return prepared(wanted, listed, stop);
        },
        [this](Removals removals) { show(std::move(removals)); });
}

void AppBatchModel::show(Removals removals)
{
    setBusy(false);
    if (std::ssize(removals) < count())
        m_list->load();
    const Exclusions& exclusions = m_app.exclusions()->current();
    for (Uninstall::Removal& removal : removals) {
        std::erase_if(removal.leftovers,
                      [&](const FileEntry& entry) { return exclusions.excludes(entry.path) != nullptr; });
    }
    if (!removals.empty() && !WindowState::of(m_app).sheet())
        WindowState::of(m_app).setSheet(PlanSheet{Uninstall::plan(removals)});
}

void AppBatchModel::clear()
{
    if (m_list != nullptr)
        m_list->untickAll();
}

void AppBatchModel::setBusy(bool isBusy)
{
    if (std::exchange(m_isBusy, isBusy) != isBusy)
        Q_EMIT changed();
}

} // namespace orlen
