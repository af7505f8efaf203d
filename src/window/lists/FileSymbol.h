#pragma once

#include <QString>

#include <string_view>

/// The icon of a file by its name. Pure; any thread.
namespace orlen::FileSymbol {

/// Symbol name for the path's extension; "doc" when it is unknown.
[[nodiscard]] QString ofName(std::string_view path);
[[nodiscard]] QString ofFolder();

} // namespace orlen::FileSymbol
