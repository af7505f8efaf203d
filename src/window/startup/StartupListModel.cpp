#include "window/startup/StartupListModel.h"

#include "tools/startup/LaunchControl.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

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
    const Text text = item.enabled ? WindowTexts::kNotSwitchedOff : WindowTexts::kNotSwitchedOn;
    return DisplayText::text(Message(text, {{"name", item.name}}));
}

} // namespace

StartupListModel::StartupListModel() : m_workers(*this) {}

void StartupListModel::load()
{
    setLoading(true);
    // Reading now would miss the result of the change.
    if (!m_wanted.empty())
        return;
    m_workers.start(
        m_load, [](const std::stop_token&) { return LaunchControl::load(); },
        [this](std::vector<LaunchItem> items) {
            setRows(m_items, std::move(items), &LaunchItem::path);
            setLoading(false);
        });
}

void StartupListModel::toggle(int row)
{
    if (!hasRow(row))
        return;
    const LaunchItem item = m_items[static_cast<std::size_t>(row)];
    const bool isWanted = !item.enabled;
    if (!item.isSwitchable)
        return;
    if (!m_wanted.emplace(item.path, isWanted).second)
        return;
    // A list being read may contain the old value, so it is read again afterwards.
    m_load.drop();
    rowsChanged(row, row);
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
        rowChanged(static_cast<std::size_t>(found - m_items.begin()));
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
    if (std::exchange(m_isLoading, isLoading) != isLoading)
        Q_EMIT loadingChanged();
}

QVariant StartupListModel::value(std::size_t number, int role) const
{
    const LaunchItem& item = m_items[number];
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

} // namespace orlen
