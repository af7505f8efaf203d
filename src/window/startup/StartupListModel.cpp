#include "window/startup/StartupListModel.h"

#include "tools/startup/LaunchControl.h"
#include "window/lists/DisplayText.h"
#include "window/lists/RowSteps.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

std::vector<std::string> keys(const std::vector<LaunchItem>& items)
{
    std::vector<std::string> paths;
    paths.reserve(items.size());
    for (const LaunchItem& item : items)
        paths.push_back(item.path);
    return paths;
}

QString symbol(LaunchSource source)
{
    switch (source) {
    case LaunchSource::launchAgent:
        return QStringLiteral("doc.text.fill");
    case LaunchSource::systemdUnit:
        return QStringLiteral("gear");
    case LaunchSource::autostartEntry:
        return QStringLiteral("macwindow");
    }
    return {};
}

QString failure(const LaunchItem& item)
{
    const QString text = item.enabled ? QStringLiteral("%1 couldn't be switched off. Nothing has changed.")
                                      : QStringLiteral("%1 couldn't be switched on. Nothing has changed.");
    return text.arg(DisplayText::path(item.name));
}

} // namespace

StartupListModel::StartupListModel(QObject* parent) : QAbstractListModel(parent), m_workers(*this) {}

StartupListModel::~StartupListModel() = default;

void StartupListModel::load()
{
    // What is read now would not be what holds after the change.
    const int generation = ++m_generation;
    setLoading(true);
    if (!m_wanted.empty())
        return;
    m_workers.start([](const std::stop_token&) { return LaunchControl::load(); },
                    [this, generation](std::vector<LaunchItem> items) {
                        if (generation != m_generation)
                            return;
                        show(std::move(items));
                        setLoading(false);
                    });
}

void StartupListModel::show(std::vector<LaunchItem> items)
{
    for (const RowStep& step : RowSteps::between(keys(m_items), keys(items))) {
        const auto at = m_items.begin() + step.row;
        switch (step.kind) {
        case RowStep::Kind::remove:
            beginRemoveRows({}, step.row, step.row);
            m_items.erase(at);
            endRemoveRows();
            break;
        case RowStep::Kind::insert:
            beginInsertRows({}, step.row, step.row);
            m_items.insert(at, items[static_cast<std::size_t>(step.row)]);
            endInsertRows();
            break;
        case RowStep::Kind::move:
            beginMoveRows({}, step.row, step.row, {}, step.to);
            std::rotate(m_items.begin() + step.to, at, at + 1);
            endMoveRows();
            break;
        }
    }
    for (std::size_t row = 0; row < items.size(); ++row) {
        if (m_items[row] == items[row])
            continue;
        m_items[row] = std::move(items[row]);
        Q_EMIT dataChanged(index(static_cast<int>(row)), index(static_cast<int>(row)));
    }
    Q_EMIT countChanged();
}

void StartupListModel::toggle(int row)
{
    if (row < 0 || row >= count())
        return;
    const LaunchItem item = m_items[static_cast<std::size_t>(row)];
    const bool isWanted = !item.enabled;
    if (!item.isSwitchable)
        return;
    if (!m_wanted.emplace(item.path, isWanted).second)
        return;
    // A list that is being read may hold the old value: it is read again afterwards.
    ++m_generation;
    Q_EMIT dataChanged(index(row), index(row));
    m_workers.start([item, isWanted](const std::stop_token&) { return LaunchControl::set(item, isWanted); },
                    [this, item](bool wasMade) { finishChange(item, wasMade); });
}

void StartupListModel::finishChange(const LaunchItem& item, bool wasMade)
{
    m_wanted.erase(item.path);
    const auto found = std::find_if(m_items.begin(), m_items.end(),
                                    [&](const LaunchItem& other) { return other.path == item.path; });
    if (found != m_items.end()) {
        if (wasMade)
            found->enabled = !item.enabled;
        const QModelIndex changed = index(static_cast<int>(found - m_items.begin()));
        Q_EMIT dataChanged(changed, changed);
    }
    if (!wasMade)
        Q_EMIT failed(failure(item));
    if (m_isLoading && m_wanted.empty())
        load();
}

bool StartupListModel::isOn(const LaunchItem& item) const
{
    const auto wanted = m_wanted.find(item.path);
    return wanted != m_wanted.end() ? wanted->second : item.enabled;
}

void StartupListModel::setLoading(bool isLoading)
{
    if (isLoading == m_isLoading)
        return;
    m_isLoading = isLoading;
    Q_EMIT loadingChanged();
}

int StartupListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant StartupListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LaunchItem& item = m_items[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::path(item.name);
    case Role::program:
        return DisplayText::shortPath(item.program);
    case Role::path:
        return DisplayText::shortPath(item.path);
    case Role::scope:
        return DisplayText::text(item.scope);
    case Role::symbol:
        return symbol(item.source);
    case Role::isOn:
        return isOn(item);
    case Role::isBusy:
        return m_wanted.contains(item.path);
    case Role::isPartOfDesktop:
        return item.isPartOfDesktop;
    case Role::isSwitchable:
        return item.isSwitchable;
    case Role::reason:
        return DisplayText::text(item.reason);
    }
    return {};
}

QHash<int, QByteArray> StartupListModel::roleNames() const
{
    return {{static_cast<int>(Role::name), "name"},
            {static_cast<int>(Role::program), "program"},
            {static_cast<int>(Role::path), "path"},
            {static_cast<int>(Role::scope), "scope"},
            {static_cast<int>(Role::symbol), "symbol"},
            {static_cast<int>(Role::isOn), "isOn"},
            {static_cast<int>(Role::isBusy), "isBusy"},
            {static_cast<int>(Role::isPartOfDesktop), "isPartOfDesktop"},
            {static_cast<int>(Role::isSwitchable), "isSwitchable"},
            {static_cast<int>(Role::reason), "reason"}};
}

} // namespace orlen
