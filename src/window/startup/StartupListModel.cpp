#include "window/startup/StartupListModel.h"

#include "tools/ToolsTexts.h"
#include "tools/startup/LaunchControl.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <QPointer>
#include <QStringList>

#include <algorithm>
#include <optional>
#include <utility>

namespace orlen {

namespace {

QString symbol(LaunchKind kind)
{
    switch (kind) {
    case LaunchKind::agent:
        return QStringLiteral("doc.text.fill");
    case LaunchKind::service:
    case LaunchKind::socket:
    case LaunchKind::path:
        return QStringLiteral("gear");
    case LaunchKind::timer:
        return QStringLiteral("clock.fill");
    case LaunchKind::autostart:
        return QStringLiteral("macwindow");
    }
    return {};
}

std::optional<std::size_t> rowOf(const std::vector<LaunchItem>& items, const std::string& path)
{
    const auto found = std::ranges::find(items, path, &LaunchItem::path);
    return found == items.end() ? std::nullopt
                                : std::optional(static_cast<std::size_t>(found - items.begin()));
}

QString hint(const LaunchItem& item)
{
    QStringList lines = {DisplayText::text(item.reason), DisplayText::line(item.command),
                         DisplayText::shortPath(item.path)};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString failure(const LaunchItem& item)
{
    const Text text = item.enabled ? WindowTexts::kNotSwitchedOff : WindowTexts::kNotSwitchedOn;
    return DisplayText::text(Message(text, {{"name", item.name}}));
}

} // namespace

StartupListModel::StartupListModel(AppModel& app) : m_app(app), m_workers(*this) {}

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
    change(m_items[static_cast<std::size_t>(row)]);
}

void StartupListModel::change(const LaunchItem& item)
{
    const bool isWanted = !item.enabled;
    if (!item.isSwitchable || !m_wanted.emplace(item.path, isWanted).second)
        return;
    // A list being read may contain the old value, so it is read again afterwards.
    m_load.drop();
    if (const auto found = rowOf(m_items, item.path))
        rowChanged(*found);
    m_workers.start(
        [item, isWanted](const std::stop_token&) {
            const bool wasMade = LaunchControl::set(item, isWanted);
            return Change{wasMade, wasMade ? LaunchControl::load() : std::vector<LaunchItem>()};
        },
        [this, item](const Change& change) { finishChange(item, change); });
}

void StartupListModel::finishChange(const LaunchItem& item, const Change& change)
{
    m_wanted.erase(item.path);
    // What is gone from the list stays until the next reading, so that no row vanishes under the pointer.
    for (const LaunchItem& now : change.after) {
        const auto found = rowOf(m_items, now.path);
        if (found && std::exchange(m_items[*found].enabled, now.enabled) != now.enabled)
            rowChanged(*found);
    }
    const auto found = rowOf(m_items, item.path);
    if (found) {
        m_items[*found].enabled = item.enabled != change.wasMade;
        rowChanged(*found);
    }
    if (change.wasMade)
        tell(item);
    else
        Q_EMIT failed(failure(item));
    if ((m_isLoading || !found) && m_wanted.empty())
        load();
}

void StartupListModel::tell(LaunchItem item)
{
    item.enabled = !item.enabled;
    const Text text = item.enabled ? ToolsTexts::kSwitchedOn : ToolsTexts::kSwitchedOff;
    WindowState::of(m_app).say(DisplayText::text(Message(text, {{"name", item.name}})),
                               [list = QPointer(this), item] {
                                   if (list)
                                       list->change(item);
                               });
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

std::optional<RowSubject> StartupListModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    return RowSubject{.path = m_items[static_cast<std::size_t>(row)].path, .isOffered = false};
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
    case Role::details:
        return DisplayText::facts({DisplayText::text(textOf(item.kind())), DisplayText::text(item.origin),
                                   DisplayText::path(item.description)});
    case Role::hint:
        return hint(item);
    case Role::scope:
        return DisplayText::text(item.scope);
    case Role::symbol:
        return symbol(item.kind());
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
