#pragma once

namespace orlen {

/// The screens of the main window, in the order of the sidebar.
enum class Screen { home, photos, ask, predict, diskMap, apps, startup, history, safety };

} // namespace orlen
