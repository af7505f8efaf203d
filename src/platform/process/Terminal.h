#pragma once

#include <optional>
#include <string>

/// The terminal that the program was called from, if it was.
namespace orlen::Terminal {

enum class Stream { input, output, error };

[[nodiscard]] bool isTerminal(Stream stream);

/// Columns of the terminal; nothing when the stream is none or does not tell.
[[nodiscard]] std::optional<int> width(Stream stream);

/// One line of standard input without its end; nothing at the end of input, or as soon as the descriptor
/// `interrupt` is readable. Waits.
[[nodiscard]] std::optional<std::string> readLine(int interrupt);

} // namespace orlen::Terminal
