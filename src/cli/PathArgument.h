#pragma once

#include <string>

/// Paths as they are typed. Blocks on the disk.
namespace orlen::PathArgument {

/// The absolute path in the form that all rules compare; links are not looked at.
[[nodiscard]] std::string absolute(const std::string& argument);

/// The folder that is meant, a link followed; empty when there is no such folder or it cannot be listed.
[[nodiscard]] std::string readableFolder(const std::string& argument);

} // namespace orlen::PathArgument
