#include "window/apps/AppListModel.h"

#include "platform/values/CheckedSum.h"
#include "tools/apps/AppList.h"
#include "window/apps/AppText.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowSteps.h"

#include <chrono>
#include <map>
#include <mutex>
#include <utility>

namespace orlen {

namespace {

constexpr std::chrono::milliseconds kTakeInterval{80};

std::vector<std::string> keys(const std::vector<AppInfo>& apps)
{
    std::vector<std::string> paths;
    paths.reserve(apps.size());
    for (const AppInfo& app : apps)
        paths.push_back(app.path);
    return paths;
}

} // namespace

/// Where the threads that measure leave what they find until the main thread looks.
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

AppListModel::AppListModel(QObject* parent) : QAbstractListModel(parent), m_workers(*this)
{
    m_takeTimer.setInterval(kTakeInterval);
    connect(&m_takeTimer, &QTimer::timeout, this, &AppListModel::takeSizes);
}

AppListModel::~AppListModel() = default;

void AppListModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr) {
        connect(m_app, &AppModel::cleaningFinished, this, &AppListModel::load);
        load();
    }
    Q_EMIT appChanged();
}

QString AppListModel::summary() const
{
    std::int64_t bytes = 0;
    for (const AppInfo& app : m_apps)
        bytes = checkedAdd(bytes, app.size.value_or(0));
    return AppText::summary(m_apps.size(), bytes);
}

void AppListModel::load()
{
    m_stop.request_stop();
    m_sizes.reset();
    const int generation = ++m_generation;
    setLoading(true);
    m_stop = m_workers.start([](const std::stop_token& stop) { return AppList::list(stop); },
                             [this, generation](std::vector<AppInfo> apps) {
                                 if (generation == m_generation)
                                     show(std::move(apps));
                             });
}

void AppListModel::show(std::vector<AppInfo> apps)
{
    // A size that was known is a better guess than none until it is measured again.
    std::map<std::string, std::optional<std::int64_t>> known;
    for (const AppInfo& app : m_apps)
        known.emplace(app.path, app.size);
    for (AppInfo& app : apps) {
        if (const auto found = known.find(app.path); found != known.end() && !app.size)
            app.size = found->second;
    }
    setRows(std::move(apps));
    measure();
    setLoading(false);
    Q_EMIT summaryChanged();
}

void AppListModel::setRows(std::vector<AppInfo> apps)
{
    for (const RowStep& step : RowSteps::between(keys(m_apps), keys(apps))) {
        const auto at = m_apps.begin() + step.row;
        switch (step.kind) {
        case RowStep::Kind::remove:
            beginRemoveRows({}, step.row, step.row);
            m_apps.erase(at);
            endRemoveRows();
            break;
        case RowStep::Kind::insert:
            beginInsertRows({}, step.row, step.row);
            m_apps.insert(at, apps[static_cast<std::size_t>(step.row)]);
            endInsertRows();
            break;
        case RowStep::Kind::move:
            beginMoveRows({}, step.row, step.row, {}, step.to);
            std::rotate(m_apps.begin() + step.to, at, at + 1);
            endMoveRows();
            break;
        }
    }
    for (std::size_t row = 0; row < apps.size(); ++row) {
        if (m_apps[row] == apps[row])
            continue;
        m_apps[row] = std::move(apps[row]);
        Q_EMIT dataChanged(index(static_cast<int>(row)), index(static_cast<int>(row)));
    }
}

void AppListModel::measure()
{
    m_sizes = std::make_shared<Sizes>();
    m_takeTimer.start();
    m_stop = m_workers.start(
        [apps = m_apps, sizes = m_sizes](const std::stop_token& stop) {
            AppList::measure(
                apps, [&](std::size_t row, std::int64_t bytes) { sizes->put(row, bytes); }, stop);
            return sizes;
        },
        [this](const std::shared_ptr<Sizes>& sizes) {
            if (sizes != m_sizes)
                return;
            takeSizes();
            m_takeTimer.stop();
            m_sizes.reset();
            Q_EMIT summaryChanged();
        });
}

void AppListModel::takeSizes()
{
    // Stopped measurements have left their rows to other applications.
    if (m_sizes == nullptr) {
        m_takeTimer.stop();
        return;
    }
    const Sizes::Known known = m_sizes->take();
    for (const auto& [row, bytes] : known) {
        m_apps[row].size = bytes;
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed, {static_cast<int>(Role::size), static_cast<int>(Role::bytes)});
    }
    if (!known.empty())
        Q_EMIT summaryChanged();
}

void AppListModel::setLoading(bool isLoading)
{
    if (isLoading == m_isLoading)
        return;
    m_isLoading = isLoading;
    Q_EMIT loadingChanged();
}

int AppListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant AppListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const AppInfo& app = m_apps[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::path(app.name);
    case Role::origin:
        return AppText::origin(app);
    case Role::icon:
        return AppText::iconId(app);
    case Role::size:
        return app.size ? DisplayText::size(*app.size) : QString();
    case Role::bytes:
        return app.size ? static_cast<double>(*app.size) : -1.0;
    }
    return {};
}

QHash<int, QByteArray> AppListModel::roleNames() const
{
    return {{static_cast<int>(Role::name), "name"},
            {static_cast<int>(Role::origin), "origin"},
            {static_cast<int>(Role::icon), "icon"},
            {static_cast<int>(Role::size), "size"},
            {static_cast<int>(Role::bytes), "bytes"}};
}

} // namespace orlen
