#pragma once

#include <optional>
#include <string>

/// The terminal the program was started from, if any.
namespace orlen::Terminal {

enum class Stream { input, output, error };

[[nodiscard]] bool isTerminal(Stream stream);

/// Width in columns; nothing if the stream is not a terminal or does not say.
[[nodiscard]] std::optional<int> width(Stream stream);

/// Waits for one line of standard input and returns it without its newline; nothing at the end of input or
/// once the descriptor `interrupt` is readable.
[[nodiscard]] std::optional<std::string> readLine(int interrupt);

} // namespace orlen::Terminal
