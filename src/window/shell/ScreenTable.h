#pragma once

#include "window/shell/Screen.h"

#include <QColor>

#include <array>
#include <string_view>

namespace orlen {

/// What the sidebar and the headers show of a screen.
struct ScreenMeta {
    Screen screen;
    std::string_view title;
    std::string_view symbol;
    QRgb colour;
    std::string_view section; ///< heading of its group in the sidebar
};

inline constexpr std::size_t kScreens = 9;

/// All screens in the order of the sidebar.
[[nodiscard]] const std::array<ScreenMeta, kScreens>& screenTable();

} // namespace orlen
