#pragma once

#include "insight/reader/Lexicon.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

/// Sizes and numbers in the words of a question. Pure; any thread.
namespace orlen::AskReader {

/// An amount and the number of words it took.
template <typename Value>
struct Taken {
    Value value;
    std::size_t words = 0;
};

/// A size at the start of the words, in bytes: "5 gb", "1.5gb", "500 megabytes". Decimal units, except that
/// "gib" and its like are binary. Nothing if there is none, or it is more than any disk holds.
[[nodiscard]] std::optional<Taken<std::int64_t>> sizeAt(std::span<const std::string> words,
                                                        const Lexicon& lexicon);

/// A whole number from 1 to 1,000 in digits, or a small one in letters.
[[nodiscard]] std::optional<Taken<std::int64_t>> numberAt(std::span<const std::string> words,
                                                          const Lexicon& lexicon);

/// The value of the words at the start, at most three, which together are such a figure.
[[nodiscard]] std::optional<Taken<double>> figureAt(Figure figure, std::span<const std::string> words,
                                                    const Lexicon& lexicon);

} // namespace orlen::AskReader
