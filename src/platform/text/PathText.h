#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Paths as text: bytes exactly as the kernel gave them, compared as bytes. Pure, any thread.
namespace orlen::PathText {

/// The part after the last slash; trailing slashes are ignored. Empty for "/" and "".
[[nodiscard]] std::string_view lastComponent(std::string_view path);

/// The path without its last component and without a trailing slash; "/" for a child of the root, empty for
/// a name without a slash.
[[nodiscard]] std::string_view parent(std::string_view path);

/// `folder` + "/" + `name`, with one slash between them.
[[nodiscard]] std::string join(std::string_view folder, std::string_view name);

/// The part of the last component after its last dot, empty when there is none. A dot in first place starts
/// a hidden name, not an extension; a trailing dot gives an empty extension.
[[nodiscard]] std::string_view extension(std::string_view path);

/// The last component without its extension and the dot before it.
[[nodiscard]] std::string_view stem(std::string_view path);

/// "." and ".." components resolved as text, repeated and trailing slashes dropped; links are not looked at.
/// A relative path stays relative, and its leading ".." are dropped.
[[nodiscard]] std::string standardized(std::string_view path);

/// The non-empty components, views into `path`.
[[nodiscard]] std::vector<std::string_view> components(std::string_view path);

/// Whether `path` is `folder` or lies below it.
[[nodiscard]] bool isAtOrBelow(std::string_view path, std::string_view folder);

/// ASCII letters made small, every other byte unchanged: for extensions and fixed names, never for words.
[[nodiscard]] std::string asciiLower(std::string_view text);

[[nodiscard]] bool isValidUtf8(std::string_view text);

/// The bytes made readable for a terminal or a screen on one line: control characters, marks that turn the
/// direction of the text and all others that are not seen become "?", except what holds an emoji together;
/// bytes that are not UTF-8 become U+FFFD. For display only, never turned back.
[[nodiscard]] std::string forDisplay(std::string_view path);

} // namespace orlen::PathText
