#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Applications in one executable file, known by their first bytes: suffixes are often missing or wrong.
namespace orlen::AppImage {

inline constexpr std::size_t kHeadLength = 11;

/// Whether a file that starts with these bytes is one. Pure.
[[nodiscard]] bool isHead(std::string_view bytes);

/// Whether the name in an open folder is a regular file that is one. Blocks on the disk.
[[nodiscard]] bool isOneAt(int folder, const std::string& name);

/// What such a file is called without its suffix, architecture and version, its words apart. Pure.
[[nodiscard]] std::string nameFromFile(std::string_view fileName);

} // namespace orlen::AppImage
