#include "tools/startup/LaunchItem.h"

#include "tools/ToolsTexts.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace orlen {

namespace {

struct Row {
    LaunchKind kind;
    const char* raw;
    std::string_view suffix; ///< of the names of such units; empty for what is no unit
    Text text;
};
constexpr Row kRows[] = {
    {LaunchKind::agent, "agent", "", ToolsTexts::kAgent},
    {LaunchKind::service, "service", ".service", ToolsTexts::kService},
    {LaunchKind::timer, "timer", ".timer", ToolsTexts::kTimer},
    {LaunchKind::socket, "socket", ".socket", ToolsTexts::kSocket},
    {LaunchKind::path, "path", ".path", ToolsTexts::kWatchedPath},
    {LaunchKind::autostart, "autostart", "", ToolsTexts::kAutostart},
};

const Row& rowOf(LaunchKind kind)
{
    return *std::ranges::find(kRows, kind, &Row::kind);
}

} // namespace

LaunchKind LaunchItem::kind() const
{
    switch (source) {
    case LaunchSource::launchAgent:
        return LaunchKind::agent;
    case LaunchSource::autostartEntry:
        return LaunchKind::autostart;
    case LaunchSource::systemdUnit:
        break;
    }
    const auto* const row = std::ranges::find_if(
        kRows, [&](const Row& known) { return !known.suffix.empty() && label.ends_with(known.suffix); });
    return row == std::end(kRows) ? LaunchKind::service : row->kind;
}

const char* rawValue(LaunchKind kind)
{
    return rowOf(kind).raw;
}

Text textOf(LaunchKind kind)
{
    return rowOf(kind).text;
}

} // namespace orlen
