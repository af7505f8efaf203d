#include "window/apps/AppDetailModel.h"

#include "platform/values/CheckedSum.h"
#include "scan/ScanTexts.h"
#include "tools/apps/AppList.h"
#include "tools/apps/Uninstall.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <chrono>
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

AppDetailModel::AppDetailModel(AppModel& app) : LeftoverListModel(app), m_workers(*this)
{
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
    m_info = m_list->apps()[static_cast<std::size_t>(listRow)];
    m_isOtherCopyInstalled = false;
    m_isRunning = false;
    m_isLoading = m_info.isRemovable();
    showRows({});
    setOpen(true);
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
    for (FileEntry& entry : found.leftovers.entries)
        rows.push_back({std::move(entry), true});
    for (FileEntry& entry : found.leftovers.byName)
        rows.push_back({std::move(entry), false});
    m_isOtherCopyInstalled = found.leftovers.isOtherCopyInstalled;
    m_isRunning = found.isRunning;
    if (found.size)
        m_info.size = found.size;
    m_isLoading = false;
    if (m_isRunning)
        m_runningTimer.start();
    showRows(std::move(rows));
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
    if (!isOpen() || m_list->isLoading())
        return;
    const auto& apps = m_list->apps();
    const auto same =
        std::find_if(apps.begin(), apps.end(), [&](const AppInfo& app) { return app.path == m_info.path; });
    if (same == apps.end()) {
        close();
    } else if (same->size && (same->size != m_info.size || same->dataSize != m_info.dataSize)) {
        m_info.size = same->size;
        m_info.dataSize = same->dataSize;
        Q_EMIT changed();
        Q_EMIT selectionChanged();
    }
}

void AppDetailModel::close()
{
    m_look.drop();
    m_runningTimer.stop();
    LeftoverListModel::close();
}

void AppDetailModel::copyCommand() const
{
    QGuiApplication::clipboard()->setText(command());
}

CleanPlan AppDetailModel::plan() const
{
    return Uninstall::plan(m_info, chosen());
}

void AppDetailModel::resumed()
{
    checkRunning();
    followList();
}

QString AppDetailModel::quitFirst() const
{
    if (!m_isRunning)
        return {};
    return DisplayText::text(Message(ScanTexts::kQuitFirst, {{"name", m_info.name}}));
}

QString AppDetailModel::size() const
{
    const std::optional<std::int64_t> bytes = isRemovable() ? m_info.size : m_info.total();
    return bytes ? DisplayText::size(*bytes) : QString();
}

QString AppDetailModel::total() const
{
    std::int64_t bytes = m_info.size.value_or(0);
    for (const FileEntry& entry : chosen())
        bytes = checkedAdd(bytes, entry.size);
    return m_info.size ? DisplayText::size(bytes) : QString();
}

} // namespace orlen
