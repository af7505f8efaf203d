#pragma once

#include <string>
#include <string_view>

/// This program's identity among the installed ones. Any thread.
namespace orlen::OwnProgram {

/// The reverse-DNS name used by its desktop entry, Flatpak and bundle.
[[nodiscard]] std::string_view identifier();

/// The running executable; empty if the system does not say.
[[nodiscard]] std::string executable();

/// What to start to run it again: the AppImage it runs from, else the executable. Absolute; empty if unknown.
[[nodiscard]] std::string path();

} // namespace orlen::OwnProgram
