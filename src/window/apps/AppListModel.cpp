#include "window/apps/AppListModel.h"

#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "window/apps/AppInfoTexts.h"
#include "window/lists/DisplayText.h"

#include <chrono>
#include <map>
#include <mutex>
#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kTakeInterval{80};

} // namespace

/// Collects measured sizes until the main thread takes them.
class AppListModel::Sizes {
public:
    using Known = std::vector<std::pair<std::size_t, std::int64_t>>;

    void put(std::size_t row, std::int64_t bytes)
    {
        const std::lock_guard lock(m_lock);
        m_known.emplace_back(row, bytes);
    }
    [[nodiscard]] Known take()
    {
        const std::lock_guard lock(m_lock);
        return std::exchange(m_known, {});
    }

private:
    std::mutex m_lock;
    Known m_known;
};

AppListModel::AppListModel(AppModel& app) : m_workers(*this)
{
    m_takeTimer.setInterval(kTakeInterval);
    connect(&m_takeTimer, &QTimer::timeout, this, &AppListModel::takeSizes);
    connect(app.cleanUps(), &CleanUps::cleaningFinished, this, &AppListModel::load);
    load();
}

QString AppListModel::summary() const
{
    std::int64_t bytes = 0;
    for (const AppInfo& app : m_apps)
        bytes = checkedAdd(bytes, app.size.value_or(0));
    return AppInfoTexts::summary(m_apps.size(), bytes);
}

void AppListModel::load()
{
    m_sizes.reset();
    setLoading(true);
    m_workers.start(
        m_work, [](const std::stop_token& stop) { return AppList::list(stop); },
        [this](std::vector<AppInfo> apps) { show(std::move(apps)); });
}

void AppListModel::show(std::vector<AppInfo> apps)
{
    // Data of removed Flatpaks is shown with what other applications left behind.
    std::erase_if(apps, [](const AppInfo& app) { return app.source == AppSource::removedFlatpak; });
    // Until measured again, the old size is a better guess than none.
    std::map<std::string, std::optional<std::int64_t>> known;
    for (const AppInfo& app : m_apps)
        known.emplace(app.path, app.size);
    for (AppInfo& app : apps) {
        if (const auto found = known.find(app.path); found != known.end() && !app.size)
            app.size = found->second;
    }
    setRows(m_apps, std::move(apps), &AppInfo::path);
    measure();
    setLoading(false);
    Q_EMIT summaryChanged();
}

void AppListModel::measure()
{
    m_sizes = std::make_shared<Sizes>();
    m_takeTimer.start();
    m_workers.start(
        m_work,
        [apps = m_apps, sizes = m_sizes](const std::stop_token& stop) {
            AppList::measure(
                apps, [&](std::size_t row, std::int64_t bytes) { sizes->put(row, bytes); }, stop);
            return sizes;
        },
        [this](const std::shared_ptr<Sizes>&) {
            takeSizes();
            m_takeTimer.stop();
            m_sizes.reset();
            Q_EMIT summaryChanged();
        });
}

void AppListModel::takeSizes()
{
    // The rows of stopped measurements belong to other applications now.
    if (m_sizes == nullptr) {
        m_takeTimer.stop();
        return;
    }
    const Sizes::Known known = m_sizes->take();
    for (const auto& [row, bytes] : known) {
        m_apps[row].size = bytes;
        rowChanged(row, Role::size);
    }
    if (!known.empty())
        Q_EMIT summaryChanged();
}

void AppListModel::setLoading(bool isLoading)
{
    if (std::exchange(m_isLoading, isLoading) != isLoading)
        Q_EMIT loadingChanged();
}

QVariant AppListModel::value(std::size_t number, int role) const
{
    const AppInfo& app = m_apps[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::path(app.name);
    case Role::origin:
        return AppInfoTexts::origin(app);
    case Role::icon:
        return AppInfoTexts::iconId(app);
    case Role::size:
        return app.size ? DisplayText::size(*app.size) : QString();
    }
    return {};
}

} // namespace orlen
