#pragma once

#include "platform/values/Time.h"

#include <cstdint>
#include <optional>

/// Days and stretches of the calendar, in UTC. Pure; any thread.
namespace orlen::AskReader {

/// From the first moment to just before the last one.
struct Span {
    TimePoint from;
    TimePoint to;
};

/// A stretch of time that a question names.
struct Period {
    TimePoint from;
    TimePoint to;
    /// When it comes next, if it was named in a way that comes again or may lie ahead: "friday", "december",
    /// "christmas", "in two weeks". `from` and `to` are then the last time, or as long ago.
    std::optional<Span> next{};
    bool isAhead = false; ///< speaks of the future by itself: "next month", "in two weeks", "easter"
    bool isToday = false; ///< said as "today"
};

/// The period where a question is about the future.
[[nodiscard]] Period coming(const Period& period);

enum class TimeUnit : std::uint8_t { day, week, month, year };

/// Days and seasons that people name.
enum class NamedDay : std::uint8_t {
    newYear,
    valentine,
    easter,
    pentecost,
    midAugust,
    halloween,
    allSaints,
    christmasEve,
    christmas,
    newYearsEve,
    spring,
    summer,
    autumn,
    winter,
};
inline constexpr int kNamedDays = 14;

/// Easter Sunday of the western churches.
[[nodiscard]] TimePoint easterSunday(int year);
[[nodiscard]] Span inYear(NamedDay day, int year);
/// The last time that it began before `now`, with the next.
[[nodiscard]] Period around(NamedDay day, TimePoint now);
/// The last of these weekdays (0: Sunday) before today, with the next after it.
[[nodiscard]] Period around(unsigned weekday, TimePoint now);

/// The first moment of a day; the last day of its month where the month is too short.
[[nodiscard]] TimePoint startOf(int year, unsigned month, unsigned day = 1);
[[nodiscard]] Period wholeYear(int year);
[[nodiscard]] Period wholeMonth(int year, unsigned month);
[[nodiscard]] Period wholeDay(TimePoint day);
/// A month, or a day of one, named without its year: the last that began, with the next.
[[nodiscard]] Period inAnyYear(unsigned month, std::optional<unsigned> day, TimePoint now);

[[nodiscard]] int yearOf(TimePoint time);
/// The day that lies so many units before `now`; after it if `count` is negative.
[[nodiscard]] TimePoint back(TimePoint now, TimeUnit unit, int count);
/// The period of the calendar that lies so many units after the one that holds `now`. What is not over ends
/// now.
[[nodiscard]] Period calendar(TimePoint now, TimeUnit unit, int after);
/// The last day of the unit that holds `now`.
[[nodiscard]] Period endOf(TimePoint now, TimeUnit unit);

} // namespace orlen::AskReader
