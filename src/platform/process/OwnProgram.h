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

/// A folder of the program's read-only data, which lies beside that of the programs: ../share/NAME, installed
/// and in a build. It need not exist; empty if the system does not say where the program is.
[[nodiscard]] std::string sharedFolder(std::string_view name);

} // namespace orlen::OwnProgram
