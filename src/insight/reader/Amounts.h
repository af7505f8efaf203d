#pragma once

#include "model/Message.h"
#include "platform/values/Time.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

/// Sizes, numbers and dates in the words of a question. Pure; any thread.
namespace orlen::AskReader {

/// From the first moment to just before the last one.
struct Period {
    TimePoint from;
    TimePoint to;
};

/// An amount and the number of words it took.
template <typename Value>
struct Taken {
    Value value;
    std::size_t words = 0;
};

/// A size at the start of the words, in bytes: "5 gb", "1.5gb", "500 megabytes". Decimal units, except that
/// "gib" and its like are binary. Nothing if there is none, or it is more than any disk holds.
[[nodiscard]] std::optional<Taken<std::int64_t>> sizeAt(std::span<const std::string> words);

/// A whole number from 1 to 1,000 in digits, or a small one in letters.
[[nodiscard]] std::optional<Taken<std::int64_t>> numberAt(std::span<const std::string> words);

/// A date or a stretch of time at the start of the words, in UTC: "2023", "march 2024", "2024-05-31", "last
/// month", "monday", "two years", "6 months ago". A stretch ends now.
[[nodiscard]] std::optional<Taken<Period>> periodAt(std::span<const std::string> words, TimePoint now);

/// The day, in UTC, that a period begins or ends with, for a message.
[[nodiscard]] Moment dayOf(TimePoint bound);

} // namespace orlen::AskReader
