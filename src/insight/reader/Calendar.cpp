#include "insight/reader/Calendar.h"

#include <array>
#include <chrono>
#include <cstddef>

namespace orlen::AskReader {

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month_day;
using std::chrono::years;

constexpr int kDaysInWeek = 7;

TimePoint onSomeDay(year_month_day date)
{
    return date.ok() ? sys_days(date) : sys_days(date.year() / date.month() / std::chrono::last);
}

year_month_day dateOf(TimePoint time)
{
    return {std::chrono::floor<days>(time)};
}

/// When a named day or season begins and how long it is; without a month, so many days after Easter Sunday.
struct Entry {
    unsigned month = 0;
    int day = 0;
    int length = 1;
};

/// In the order of their identifiers.
constexpr std::array<Entry, kNamedDays> kEntries{{
    {1, 1},
    {2, 14},
    {0, 0, 2},
    {0, 49, 2},
    {8, 15},
    {10, 31},
    {11, 1},
    {12, 24},
    {12, 25, 2},
    {12, 31},
    {3, 20, 93},
    {6, 21, 93},
    {9, 22, 90},
    {12, 21, 89},
}};

Period withNext(const Span& last, const Span& next)
{
    return {last.from, last.to, next, false};
}

TimePoint startOfWeek(TimePoint now)
{
    const auto today = std::chrono::floor<days>(now);
    return today - (std::chrono::weekday(today) - std::chrono::Monday);
}

} // namespace

Period coming(const Period& period)
{
    return period.next ? Period{period.next->from, period.next->to} : period;
}

TimePoint easterSunday(int year)
{
    // The anonymous Gregorian computus.
    const int golden = year % 19;
    const int century = year / 100;
    const int ofCentury = year % 100;
    const int correction = (century - (century + 8) / 25 + 1) / 3;
    const int epact = (19 * golden + century - century / 4 - correction + 15) % 30;
    const int toSunday = (32 + 2 * (century % 4) + 2 * (ofCentury / 4) - epact - ofCentury % 4) % 7;
    const int late = (golden + 11 * epact + 22 * toSunday) / 451;
    const int sinceMarch = epact + toSunday - 7 * late + 114;
    return startOf(year, static_cast<unsigned>(sinceMarch / 31), static_cast<unsigned>(sinceMarch % 31 + 1));
}

Span inYear(NamedDay day, int year)
{
    const Entry& entry = kEntries[static_cast<std::size_t>(day)];
    const TimePoint from = entry.month == 0 ? easterSunday(year) + days(entry.day)
                                            : startOf(year, entry.month, static_cast<unsigned>(entry.day));
    return {from, from + days(entry.length)};
}

Period around(NamedDay day, TimePoint now)
{
    const int year = yearOf(now);
    const Span current = inYear(day, year);
    Period period = current.from <= now ? withNext(current, inYear(day, year + 1))
                                        : withNext(inYear(day, year - 1), current);
    if (period.to > now) // it is this very day or season: that counts as the next one, too
        period.next = current.from <= now ? current : Span{period.from, period.to};
    period.isAhead = true;
    return period;
}

Period around(unsigned weekday, TimePoint now)
{
    const auto today = std::chrono::floor<days>(now);
    const days since = std::chrono::weekday(today) - std::chrono::weekday(weekday);
    const TimePoint last = today - (since == days(0) ? days(kDaysInWeek) : since);
    const TimePoint next = last + days(since == days(0) ? 2 * kDaysInWeek : kDaysInWeek);
    return withNext({last, last + days(1)}, {next, next + days(1)});
}

TimePoint startOf(int year, unsigned month, unsigned day)
{
    return onSomeDay(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day));
}

Period wholeYear(int year)
{
    return {startOf(year, 1), startOf(year + 1, 1)};
}

Period wholeMonth(int year, unsigned month)
{
    return {startOf(year, month), month == 12 ? startOf(year + 1, 1) : startOf(year, month + 1)};
}

Period wholeDay(TimePoint day)
{
    return {day, day + days(1)};
}

Period inAnyYear(unsigned month, std::optional<unsigned> day, TimePoint now)
{
    const auto ofYear = [&](int year) {
        const Period period = day ? wholeDay(startOf(year, month, *day)) : wholeMonth(year, month);
        return Span{period.from, period.to};
    };
    const int year = yearOf(now);
    const Span current = ofYear(year);
    if (current.from > now)
        return withNext(ofYear(year - 1), current);
    return withNext(current, current.to > now ? current : ofYear(year + 1));
}

int yearOf(TimePoint time)
{
    return static_cast<int>(dateOf(time).year());
}

TimePoint back(TimePoint now, TimeUnit unit, int count)
{
    const auto today = std::chrono::floor<days>(now);
    switch (unit) {
    case TimeUnit::day:
        return today - days(count);
    case TimeUnit::week:
        return today - days(kDaysInWeek * count);
    case TimeUnit::month:
        return onSomeDay(dateOf(now) - months(count));
    case TimeUnit::year:
        return onSomeDay(dateOf(now) - years(count));
    }
    return now;
}

Period calendar(TimePoint now, TimeUnit unit, int after)
{
    const TimePoint month = startOf(yearOf(now), static_cast<unsigned>(dateOf(now).month()));
    const bool isAhead = after > 0;
    switch (unit) {
    case TimeUnit::year: {
        const Period year = wholeYear(yearOf(now) + after);
        return {year.from, after == 0 ? now : year.to, {}, isAhead};
    }
    case TimeUnit::month: {
        const TimePoint from = back(month, unit, -after);
        return {from, after == 0 ? now : back(from, unit, -1), {}, isAhead};
    }
    case TimeUnit::week:
        if (isAhead)
            return {startOfWeek(now) + days(kDaysInWeek), startOfWeek(now) + days(2 * kDaysInWeek), {}, true};
        break;
    case TimeUnit::day:
        break;
    }
    // People mean the last seven days by "last week" and "this week", whichever weekday it is.
    const TimePoint today = back(now, TimeUnit::day, 0);
    if (isAhead)
        return {today + days(1), today + days(2), {}, true};
    return {back(now, unit, 1), after == 0 ? now : today};
}

Period endOf(TimePoint now, TimeUnit unit)
{
    const TimePoint today = back(now, TimeUnit::day, 0);
    const TimePoint month = startOf(yearOf(now), static_cast<unsigned>(dateOf(now).month()));
    TimePoint end = today + days(1);
    if (unit == TimeUnit::week)
        end = startOfWeek(now) + days(kDaysInWeek);
    else if (unit == TimeUnit::month)
        end = back(month, TimeUnit::month, -1);
    else if (unit == TimeUnit::year)
        end = startOf(yearOf(now) + 1, 1);
    return {end - days(1), end, {}, true};
}

} // namespace orlen::AskReader
