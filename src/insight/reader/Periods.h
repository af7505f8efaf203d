#pragma once

#include "insight/reader/Amounts.h"
#include "insight/reader/Calendar.h"
#include "model/Message.h"

#include <optional>
#include <span>
#include <string>

/// Dates in the words of a question. Pure; any thread.
namespace orlen::AskReader {

/// A date or a stretch of time at the start of the words, in UTC: "2023", "march 2024", "2024-05-31", "last
/// month", "two years", "6 months ago", "in three weeks", "christmas". A stretch ends now. The name of a
/// month that is another word as well counts only as part of a date, or where one `isExpected`: "since may".
[[nodiscard]] std::optional<Taken<Period>> periodAt(std::span<const std::string> words,
                                                    const Lexicon& lexicon, TimePoint now, bool isExpected);

/// The day, in UTC, that a period begins or ends with, for a message.
[[nodiscard]] Moment dayOf(TimePoint bound);

} // namespace orlen::AskReader
