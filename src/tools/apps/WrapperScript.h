#pragma once

#include <string>
#include <string_view>

/// Shell scripts that do little more than start another program, as people write them to put one on the PATH.
namespace orlen::WrapperScript {

/// The program that a "#!" script hands over to: what it starts with `exec`, or else by its last command. An
/// absolute path; variables that the script sets itself, HOME and "~" are replaced. Empty if the text is no
/// script or the program is not named plainly. Pure.
[[nodiscard]] std::string targetIn(std::string_view text, std::string_view home);

/// The same for a file; empty if it cannot be read. Links are not followed. Blocks on the disk; any thread.
[[nodiscard]] std::string target(const std::string& path);

} // namespace orlen::WrapperScript
