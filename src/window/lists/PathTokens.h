#pragma once

#include <QString>

#include <string>

/// Numbers that stand for paths in QML, which never holds a path: its texts could not keep every byte. A path
/// has the same number until the program ends. Any thread.
namespace orlen::PathTokens {

/// From 1. Only asked for what is shown, so the table stays as small as what a person has looked at.
[[nodiscard]] int tokenOf(const std::string& path);

/// Empty for a number that was never given.
[[nodiscard]] std::string path(int token);

} // namespace orlen::PathTokens
