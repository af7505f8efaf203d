#include "window/shell/Screens.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <array>

namespace orlen {

namespace {

using namespace WindowTexts;
using Reload = Screens::Reload;

// clang-format off
/// Everything the program knows about a screen outside its own folder.
constexpr auto kScreens = std::to_array<Screens::Meta>({
    {Screens::Home, kSmartScan, "sparkles", 0xff3b7bf7, kCleanScreens, "HomeScreen"},
    {Screens::Photos, kSmartPhotos, "photo.stack.fill", 0xffee4c86, kCleanScreens, "PhotosScreen"},
    {Screens::Ask, kAskOrlen, "bubble.left.and.text.bubble.right.fill", 0xff9257e8, kInsightScreens, "AskScreen"},
    {Screens::Predict, kPredict, "chart.line.uptrend.xyaxis", 0xfff08a24, kInsightScreens, "PredictScreen"},
    {Screens::DiskMap, kDiskMap, "square.grid.3x3.fill", 0xff1fa3a8, kInsightScreens, "DiskMapScreen", Reload::ownKey},
    {Screens::Apps, kApplications, "app.badge.fill", 0xff5b5fe0, kManageScreens, "AppsScreen", Reload::ownKey},
    {Screens::Startup, kStartupItems, "power.circle.fill", 0xffe5484d, kManageScreens, "StartupScreen", Reload::ownKey},
    {Screens::History, kHistory, "clock.arrow.circlepath", 0xff2ea05a, kManageScreens, "HistoryScreen"},
    {Screens::Safety, kHowOrlenWorks, "checkmark.shield.fill", 0xff22ae90, kAboutScreens, "SafetyScreen"},
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
