#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Paths as text: raw bytes from the kernel, compared as bytes. Pure; any thread.
namespace orlen::PathText {

/// The part after the last slash, ignoring trailing slashes. Empty for "/" and "".
[[nodiscard]] std::string_view lastComponent(std::string_view path);

/// The path without its last component and trailing slash; "/" for a child of the root, empty for a bare
/// name.
[[nodiscard]] std::string_view parent(std::string_view path);

/// `folder` + "/" + `name`, with one slash between them.
[[nodiscard]] std::string join(std::string_view folder, std::string_view name);

/// What follows the last dot of the last component; empty if there is none. A leading dot marks a hidden
/// name, not an extension.
[[nodiscard]] std::string_view extension(std::string_view path);

/// The last component without its extension and the dot before it.
[[nodiscard]] std::string_view stem(std::string_view path);

/// Resolves "." and ".." textually and drops repeated and trailing slashes; links are not looked at. A
/// relative path stays relative and loses its leading "..".
[[nodiscard]] std::string standardized(std::string_view path);

/// The non-empty components, as views into `path`.
[[nodiscard]] std::vector<std::string_view> components(std::string_view path);

/// Whether `path` is `folder` or lies below it.
[[nodiscard]] bool isAtOrBelow(std::string_view path, std::string_view folder);

/// ASCII letters in lower case, other bytes unchanged: for extensions and fixed names, not for words.
[[nodiscard]] std::string asciiLower(std::string_view text);

[[nodiscard]] bool isValidUtf8(std::string_view text);

/// The path as one printable line: control characters, direction marks and other invisible characters become
/// "?", except those that hold an emoji together; invalid UTF-8 becomes U+FFFD. For display only; cannot be
/// reversed.
[[nodiscard]] std::string forDisplay(std::string_view path);

} // namespace orlen::PathText
