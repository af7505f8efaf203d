#include "window/shell/Screens.h"

#include "window/lists/DisplayText.h"

#include <algorithm>
#include <array>

namespace orlen {

namespace {

using Reload = Screens::Reload;

// clang-format off
/// Everything the program knows about a screen outside its own folder.
constexpr auto kScreens = std::to_array<Screens::Meta>({
    {Screens::Home, "Smart Scan", "sparkles", 0xff3b7bf7, "Clean", "HomeScreen"},
    {Screens::Photos, "Smart Photos", "photo.stack.fill", 0xffee4c86, "Clean", "PhotosScreen"},
    {Screens::Ask, "Ask Orlen", "bubble.left.and.text.bubble.right.fill", 0xff9257e8, "Insights", "AskScreen"},
    {Screens::Predict, "Predict", "chart.line.uptrend.xyaxis", 0xfff08a24, "Insights", "PredictScreen"},
    {Screens::DiskMap, "Disk Map", "square.grid.3x3.fill", 0xff1fa3a8, "Insights", "DiskMapScreen", Reload::ownKey},
    {Screens::Apps, "Applications", "app.badge.fill", 0xff5b5fe0, "Manage", "AppsScreen", Reload::ownKey},
    {Screens::Startup, "Startup Items", "power.circle.fill", 0xffe5484d, "Manage", "StartupScreen", Reload::ownKey},
    {Screens::History, "History", "clock.arrow.circlepath", 0xff2ea05a, "Manage", "HistoryScreen"},
    {Screens::Safety, "How Orlen Works", "checkmark.shield.fill", 0xff22ae90, "About", "SafetyScreen"},
});
// clang-format on
static_assert(std::ranges::is_sorted(kScreens, {}, &Screens::Meta::screen) &&
              kScreens.back().screen == kScreens.size() - 1);

} // namespace

const Screens::Meta& Screens::at(Screen screen)
{
    return kScreens.at(screen);
}

QString Screens::title(Screen screen)
{
    return DisplayText::text(at(screen).title);
}

bool Screens::hasReload(Screen screen)
{
    return at(screen).reload == Reload::ownKey;
}

int Screens::length() const
{
    return static_cast<int>(kScreens.size());
}

QVariant Screens::value(std::size_t number, int role) const
{
    const Meta& meta = kScreens[number];
    switch (static_cast<Role>(role)) {
    case Role::title:
        return DisplayText::text(meta.title);
    case Role::symbol:
        return DisplayText::text(meta.symbol);
    case Role::tone:
        return QColor(meta.colour);
    case Role::section:
        return DisplayText::text(meta.section);
    case Role::screen:
        return meta.screen;
    case Role::component:
        return DisplayText::text(meta.component) + ".qml";
    }
    return {};
}

} // namespace orlen
