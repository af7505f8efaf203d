#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Finds the icons of other programs. Reads environment variables, never a file.
namespace orlen::IconFiles {

/// The files that may hold an icon, best for `pixels` first; most do not exist. `icon` is what a desktop
/// entry says: an absolute path or a theme name, with or without a suffix. Empty for a relative path.
[[nodiscard]] std::vector<std::string> candidates(std::string_view icon, int pixels);

/// Whether a file with all links resolved is an SVG installed with the system. Any other icon is as untrusted
/// as a picture.
[[nodiscard]] bool isSystemDrawing(std::string_view file);

} // namespace orlen::IconFiles
