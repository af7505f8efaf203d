#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Where the icons of other programs lie. Reads the environment's folders, never a file.
namespace orlen::IconFiles {

/// The files that an icon may be, the best for `pixels` first; most of them do not exist. `icon` is what a
/// desktop entry says: an absolute path or a name of the theme, with or without a suffix. None for a relative
/// path.
[[nodiscard]] std::vector<std::string> candidates(std::string_view icon, int pixels);

/// Whether a file, all links resolved, is a drawing that came with the system. Any other icon is a foreign
/// file like any picture.
[[nodiscard]] bool isSystemDrawing(std::string_view file);

} // namespace orlen::IconFiles
