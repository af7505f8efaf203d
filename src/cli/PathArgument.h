#pragma once

#include <string>

/// Paths given on the command line. Blocks on the disk.
namespace orlen::PathArgument {

/// The absolute path in the form that all rules compare; links are not followed.
[[nodiscard]] std::string absolute(const std::string& argument);

/// The same with links among its folders resolved: where a scan finds it. What does not exist stays as it is.
[[nodiscard]] std::string located(const std::string& argument);

/// The folder with links resolved; empty if it does not exist or cannot be listed.
[[nodiscard]] std::string readableFolder(const std::string& argument);

} // namespace orlen::PathArgument
