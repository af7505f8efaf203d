#include "window/apps/AppDetailModel.h"

#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "tools/apps/Uninstall.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <chrono>
#include <iterator>
#include <span>
#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::seconds kRunningInterval{2};

} // namespace

/// What a worker found out about an application.
struct AppDetailModel::Found {
    Leftovers::Finding leftovers;
    std::optional<std::int64_t> size;
    bool isRunning = false;
};

AppDetailModel::AppDetailModel(AppModel& app) : m_app(app), m_workers(*this)
{
    connect(&WindowState::of(m_app), &WindowState::sheetChanged, this, &AppDetailModel::followSheet);
    m_runningTimer.setSingleShot(true);
    m_runningTimer.setInterval(kRunningInterval);
    connect(&m_runningTimer, &QTimer::timeout, this, &AppDetailModel::checkRunning);
}

void AppDetailModel::setList(AppListModel* list)
{
    if (m_list == list)
        return;
    if (m_list != nullptr)
        m_list->disconnect(this);
    m_list = list;
    if (m_list != nullptr)
        connect(m_list, &AppListModel::summaryChanged, this, &AppDetailModel::followList);
    Q_EMIT listChanged();
}

void AppDetailModel::show(int listRow)
{
    if (m_list == nullptr || listRow < 0 || listRow >= m_list->rowCount())
        return;
    m_look.drop();
    m_runningTimer.stop();
    resetRows(m_rows, {});
    m_info = m_list->apps()[static_cast<std::size_t>(listRow)];
    m_isOtherCopyInstalled = false;
    m_isRunning = false;
    m_isLoading = m_info.isRemovable();
    setOpen(true);
    Q_EMIT changed();
    Q_EMIT selectionChanged();
    if (!m_info.isRemovable())
        return;
    m_workers.start(
        m_look,
        [app = m_info, listed = m_list->apps()](const std::stop_token& stop) {
            return look(app, listed, stop);
        },
        [this](Found found) { take(std::move(found)); });
}

AppDetailModel::Found AppDetailModel::look(const AppInfo& app, const std::vector<AppInfo>& listed,
                                           const std::stop_token& stop)
{
    Found found;
    found.isRunning = AppList::isRunning(app);
    found.leftovers = Leftovers::find(app, listed, stop);
    found.size = app.size;
    if (!found.size)
        AppList::measure(
            std::span(&app, 1), [&](std::size_t, std::int64_t bytes) { found.size = bytes; }, stop);
    return found;
}

void AppDetailModel::take(Found found)
{
    std::vector<Row> rows;
    rows.reserve(found.leftovers.entries.size());
    for (FileEntry& entry : found.leftovers.entries)
        rows.push_back({std::move(entry), true});
    resetRows(m_rows, std::move(rows));
    m_isOtherCopyInstalled = found.leftovers.isOtherCopyInstalled;
    m_isRunning = found.isRunning;
    if (found.size)
        m_info.size = found.size;
    m_isLoading = false;
    if (m_isRunning)
        m_runningTimer.start();
    Q_EMIT changed();
    Q_EMIT selectionChanged();
}

void AppDetailModel::checkRunning()
{
    m_workers.start(
        m_look, [app = m_info](const std::stop_token&) { return AppList::isRunning(app); },
        [this](bool isRunning) {
            m_isRunning = isRunning;
            if (m_isRunning)
                m_runningTimer.start();
            Q_EMIT changed();
        });
}

/// The application's size may have arrived, or the application may be gone.
void AppDetailModel::followList()
{
    if (!m_isOpen || m_list->isLoading())
        return;
    const auto& apps = m_list->apps();
    const auto same =
        std::find_if(apps.begin(), apps.end(), [&](const AppInfo& app) { return app.path == m_info.path; });
    if (same == apps.end()) {
        close();
    } else if (same->size && same->size != m_info.size) {
        m_info.size = same->size;
        Q_EMIT changed();
        Q_EMIT selectionChanged();
    }
}

void AppDetailModel::close()
{
    m_look.drop();
    m_runningTimer.stop();
    setOpen(false);
}

void AppDetailModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    bool& isChecked = m_rows[static_cast<std::size_t>(row)].isChecked;
    isChecked = !isChecked;
    rowsChanged(row, row, Role::checked);
    Q_EMIT selectionChanged();
}

void AppDetailModel::toggleAll()
{
    if (m_rows.empty())
        return;
    const bool isChecked = checkState() != Qt::Checked;
    for (Row& row : m_rows)
        row.isChecked = isChecked;
    allChanged(Role::checked);
    Q_EMIT selectionChanged();
}

void AppDetailModel::copyCommand() const
{
    QGuiApplication::clipboard()->setText(command());
}

void AppDetailModel::review()
{
    if (!m_isOpen || !isReady())
        return;
    CleanPlan plan = Uninstall::plan(m_info, chosen());
    close();
    m_reviewed = plan.id;
    WindowState::of(m_app).setSheet(PlanSheet{std::move(plan)});
}

void AppDetailModel::followSheet()
{
    const auto* review =
        WindowState::of(m_app).sheet() ? std::get_if<PlanSheet>(&*WindowState::of(m_app).sheet()) : nullptr;
    if (!m_reviewed || (review != nullptr && review->plan.id == *m_reviewed))
        return;
    m_reviewed.reset();
    // A confirmed review also closes, and the clean-up begins only after that.
    QMetaObject::invokeMethod(this, &AppDetailModel::resume, Qt::QueuedConnection);
}

/// Reopens the application as it was.
void AppDetailModel::resume()
{
    if (m_isOpen || WindowState::of(m_app).sheet() || m_app.cleanUps()->cleaning())
        return;
    setOpen(true);
    checkRunning();
    followList();
}

void AppDetailModel::setOpen(bool isOpen)
{
    if (std::exchange(m_isOpen, isOpen) != isOpen)
        Q_EMIT openChanged();
}

std::vector<FileEntry> AppDetailModel::chosen() const
{
    std::vector<FileEntry> entries;
    for (const Row& row : m_rows) {
        if (row.isChecked)
            entries.push_back(row.entry);
    }
    return entries;
}

QString AppDetailModel::quitFirst() const
{
    return m_isRunning ? QStringLiteral("Quit %1 first").arg(name()) : QString();
}

Qt::CheckState AppDetailModel::checkState() const
{
    return checkStateOf(std::ranges::count(m_rows, true, &Row::isChecked), m_rows.size());
}

QString AppDetailModel::chosenText() const
{
    return DisplayText::selectedOf(std::ssize(chosen()), length());
}

QString AppDetailModel::total() const
{
    std::int64_t bytes = m_info.size.value_or(0);
    for (const FileEntry& entry : chosen())
        bytes = checkedAdd(bytes, entry.size);
    return m_info.size ? DisplayText::size(bytes) : QString();
}

QVariant AppDetailModel::value(std::size_t number, int role) const
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
        return DisplayText::path(entry.note.value_or(""));
    case Role::checked:
        return isChecked;
    }
    return {};
}

} // namespace orlen
