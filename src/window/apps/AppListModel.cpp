#include "window/apps/AppListModel.h"

#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "window/WindowTexts.h"
#include "window/apps/AppInfoTexts.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <chrono>
#include <iterator>
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
    using Size = std::optional<std::int64_t> AppInfo::*;
    struct Measured {
        std::size_t row;
        Size size;
        std::int64_t bytes;
    };
    using Known = std::vector<Measured>;

    void put(std::size_t row, Size size, std::int64_t bytes)
    {
        const std::lock_guard lock(m_lock);
        m_known.push_back({row, size, bytes});
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
    connect(app.cleanUps(), &CleanUps::restored, this, &AppListModel::load);
    load();
}

QString AppListModel::summary() const
{
    std::int64_t bytes = 0;
    for (const AppInfo& app : m_apps)
        bytes = checkedAdd(bytes, app.total().value_or(0));
    return AppInfoTexts::summary(m_apps.size(), bytes);
}

QString AppListModel::packaged() const
{
    return m_packaged == 0
               ? QString()
               : DisplayText::counted(static_cast<std::int64_t>(m_packaged), WindowTexts::kPackaged);
}

std::vector<AppInfo> AppListModel::ticked() const
{
    std::vector<AppInfo> apps;
    std::ranges::copy_if(m_apps, std::back_inserter(apps),
                         [this](const AppInfo& app) { return m_ticked.contains(app.path); });
    return apps;
}

void AppListModel::tick(int row)
{
    if (!hasRow(row) || !m_apps[static_cast<std::size_t>(row)].isRemovable())
        return;
    if (const auto [at, isNew] = m_ticked.insert(m_apps[static_cast<std::size_t>(row)].path); !isNew)
        m_ticked.erase(at);
    rowsChanged(row, row, Role::checked);
    Q_EMIT tickedChanged();
}

void AppListModel::untickAll()
{
    m_ticked.clear();
    allChanged(Role::checked);
    Q_EMIT tickedChanged();
}

std::optional<RowSubject> AppListModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    const AppInfo& app = m_apps[static_cast<std::size_t>(row)];
    return RowSubject{.path = app.path, .isOffered = app.isRemovable()};
}

void AppListModel::load()
{
    m_sizes.reset();
    setLoading(true);
    m_workers.start(
        m_work,
        [](const std::stop_token& stop) {
            return Loaded{AppList::list(stop), AppList::countPackaged(stop)};
        },
        [this](Loaded loaded) { show(std::move(loaded)); });
}

void AppListModel::show(Loaded loaded)
{
    std::vector<AppInfo>& apps = loaded.apps;
    m_packaged = loaded.packaged;
    // Data of removed Flatpaks is shown with what other applications left behind.
    std::erase_if(apps, [](const AppInfo& app) { return app.source == AppSource::removedFlatpak; });
    // Until measured again, the old sizes are a better guess than none.
    std::map<std::string, const AppInfo*> known;
    for (const AppInfo& app : m_apps)
        known.emplace(app.path, &app);
    for (AppInfo& app : apps) {
        if (const auto found = known.find(app.path); found != known.end()) {
            app.size = found->second->size;
            app.dataSize = found->second->dataSize;
        }
    }
    setRows(m_apps, std::move(apps), &AppInfo::path);
    const std::size_t gone = std::erase_if(m_ticked, [this](const std::string& path) {
        return std::ranges::find(m_apps, path, &AppInfo::path) == m_apps.end();
    });
    if (gone > 0)
        Q_EMIT tickedChanged();
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
            const auto into = [&sizes](Sizes::Size size) {
                return [&sizes, size](std::size_t row, std::int64_t bytes) { sizes->put(row, size, bytes); };
            };
            AppList::measure(apps, into(&AppInfo::size), stop);
            AppList::measureData(apps, into(&AppInfo::dataSize), stop);
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
    for (const auto& [row, size, bytes] : known) {
        m_apps[row].*size = bytes;
        rowChanged(row, Role::size, Role::usage);
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
    case Role::usage:
        return AppInfoTexts::usage(app);
    case Role::icon:
        return AppInfoTexts::iconId(app);
    case Role::isRemovable:
        return app.isRemovable();
    case Role::checked:
        return m_ticked.contains(app.path);
    case Role::size:
        return app.total() ? DisplayText::size(*app.total()) : QString();
    }
    return {};
}

} // namespace orlen
