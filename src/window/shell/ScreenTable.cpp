#include "window/shell/ScreenTable.h"

namespace orlen {

const std::array<ScreenMeta, kScreens>& screenTable()
{
    using enum Screen;
    static constexpr std::array<ScreenMeta, kScreens> kTable{{
        {home, "Smart Scan", "sparkles", 0xff3b7bf7, "Clean"},
        {photos, "Smart Photos", "photo.stack.fill", 0xffee4c86, "Clean"},
        {ask, "Ask Orlen", "bubble.left.and.text.bubble.right.fill", 0xff9257e8, "Insights"},
        {predict, "Predict", "chart.line.uptrend.xyaxis", 0xfff08a24, "Insights"},
        {diskMap, "Disk Map", "square.grid.3x3.fill", 0xff1fa3a8, "Insights"},
        {apps, "Applications", "app.badge.fill", 0xff5b5fe0, "Manage"},
        {startup, "Startup Items", "power.circle.fill", 0xffe5484d, "Manage"},
        {history, "History", "clock.arrow.circlepath", 0xff2ea05a, "Manage"},
        {safety, "How Orlen Works", "checkmark.shield.fill", 0xff22ae90, "About"},
    }};
    return kTable;
}

} // namespace orlen
