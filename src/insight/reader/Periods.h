#pragma once

#include "insight/reader/Amounts.h"
#include "model/Message.h"
#include "platform/values/Time.h"

#include <optional>
#include <span>
#include <string>

/// Dates in the words of a question. Pure; any thread.
namespace orlen::AskReader {

/// From the first moment to just before the last one.
struct Period {
    TimePoint from;
    TimePoint to;
    /// Named without a year: the last such month or day; the next one if the question is about the future.
    bool isAnyYear = false;
};

/// A date or a stretch of time at the start of the words, in UTC: "2023", "march 2024", "2024-05-31", "last
/// month", "two years", "6 months ago". A stretch ends now.
[[nodiscard]] std::optional<Taken<Period>> periodAt(std::span<const std::string> words,
                                                    const Lexicon& lexicon, TimePoint now);

/// The first such period that is not over.
[[nodiscard]] Period coming(const Period& period, TimePoint now);

/// The day, in UTC, that a period begins or ends with, for a message.
[[nodiscard]] Moment dayOf(TimePoint bound);

} // namespace orlen::AskReader
