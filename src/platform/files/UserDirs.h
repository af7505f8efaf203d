#pragma once

#include <map>
#include <string>
#include <string_view>

/// The file "user-dirs.dirs", in which a desktop names the user's folders.
namespace orlen::UserDirs {

/// Maps keys such as "DOWNLOAD" to absolute paths without a trailing slash. Only lines of the form
/// XDG_KEY_DIR="$HOME/rel" or ="/abs" count. Folders outside `home` are ignored, and so is `home` itself,
/// which means switched off. The last line for a key wins.
[[nodiscard]] std::map<std::string, std::string> parse(std::string_view text, std::string_view home);

} // namespace orlen::UserDirs
