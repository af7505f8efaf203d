#pragma once

#include "model/Message.h"

#include <string>
#include <string_view>

/// Names and paths as both the command line and the window show them. Pure.
namespace orlen::Format {

/// A path on one line, with "~" for the home folder.
[[nodiscard]] std::string shownPath(std::string_view path);
/// The path as given, on one line, in quotation marks.
[[nodiscard]] std::string quoted(std::string_view path);
/// A message whose names, as the disk has them, are made safe to show.
[[nodiscard]] Message displayable(Message message);

} // namespace orlen::Format
