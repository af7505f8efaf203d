#pragma once

#include <string>
#include <string_view>

/// What this program is among the installed ones. Any thread.
namespace orlen::OwnProgram {

/// The reverse-DNS name that its desktop entry, its Flatpak and its bundle carry.
[[nodiscard]] std::string_view identifier();

/// The file of the running executable; empty when the system does not tell.
[[nodiscard]] std::string executable();

/// What starts it again: the AppImage that it runs from, else the executable. Absolute, or empty when
/// unknown.
[[nodiscard]] std::string path();

} // namespace orlen::OwnProgram
