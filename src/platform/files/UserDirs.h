#pragma once

#include <map>
#include <string>
#include <string_view>

/// The file "user-dirs.dirs", in which a desktop names the user's folders.
namespace orlen::UserDirs {

/// Key (for example "DOWNLOAD") to absolute path without a trailing slash. Lines that are not of the form
/// XDG_KEY_DIR="$HOME/rel" or ="/abs" are ignored, as are entries equal to `home` (switched off) and entries
/// outside it. A later line for a key replaces an earlier one.
[[nodiscard]] std::map<std::string, std::string> parse(std::string_view text, std::string_view home);

} // namespace orlen::UserDirs
