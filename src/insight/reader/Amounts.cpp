#include "insight/reader/Amounts.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <string_view>

namespace orlen::AskReader {

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month_day;
using std::chrono::years;

struct NamedValue {
    std::string_view name;
    double value;
};

constexpr NamedValue kSizeUnits[] = {
    {"b", 1},
    {"byte", 1},
    {"bytes", 1},
    {"k", 1e3},
    {"kb", 1e3},
    {"kilobyte", 1e3},
    {"kilobytes", 1e3},
    {"mb", 1e6},
    {"mbs", 1e6},
    {"meg", 1e6},
    {"megs", 1e6},
    {"megabyte", 1e6},
    {"megabytes", 1e6},
    {"gb", 1e9},
    {"gbs", 1e9},
    {"gig", 1e9},
    {"gigs", 1e9},
    {"gigabyte", 1e9},
    {"gigabytes", 1e9},
    {"tb", 1e12},
    {"terabyte", 1e12},
    {"terabytes", 1e12},
    {"kib", 1024},
    {"mib", 1048576},
    {"gib", 1073741824},
    {"tib", 1099511627776},
};

constexpr NamedValue kNumbers[] = {
    {"one", 1},      {"two", 2},     {"three", 3},  {"four", 4},      {"five", 5},    {"six", 6},
    {"seven", 7},    {"eight", 8},   {"nine", 9},   {"ten", 10},      {"twelve", 12}, {"dozen", 12},
    {"fifteen", 15}, {"twenty", 20}, {"fifty", 50}, {"hundred", 100},
};

constexpr std::string_view kMonths[] = {"january",   "february", "march",    "april",
                                        "may",       "june",     "july",     "august",
                                        "september", "october",  "november", "december"};

constexpr std::string_view kWeekdays[] = {"sunday",   "monday", "tuesday", "wednesday",
                                          "thursday", "friday", "saturday"};

enum class Unit { day, week, month, year };

struct NamedUnit {
    std::string_view name;
    Unit unit;
};

constexpr NamedUnit kTimeUnits[] = {
    {"day", Unit::day},     {"days", Unit::day},     {"week", Unit::week}, {"weeks", Unit::week},
    {"month", Unit::month}, {"months", Unit::month}, {"year", Unit::year}, {"years", Unit::year},
};

constexpr std::int64_t kMostListed = 1'000;
constexpr int kFirstYear = 1980;
constexpr int kLastYear = 2100;

template <typename Row, std::size_t count>
const Row* rowNamed(const Row (&rows)[count], std::string_view name)
{
    const auto* const found = std::ranges::find(rows, name, &Row::name);
    return found == std::end(rows) ? nullptr : found;
}

/// The number that the text begins with, and what follows it. A comma counts as a decimal point.
struct Leading {
    double value = 0;
    std::string rest;
};

std::optional<Leading> leadingNumber(std::string text)
{
    std::ranges::replace(text, ',', '.');
    if (text.empty() || text.front() < '0' || text.front() > '9')
        return std::nullopt;
    double value = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    if (error != std::errc())
        return std::nullopt;
    return Leading{value, text.substr(static_cast<std::size_t>(end - text.data()))};
}

std::optional<int> digits(std::string_view text)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return value;
}

std::optional<int> yearIn(std::string_view text)
{
    const std::optional<int> value = digits(text);
    return text.size() == 4 && value && *value >= kFirstYear && *value <= kLastYear ? value : std::nullopt;
}

/// 1 to 12; short names have at least three letters.
std::optional<unsigned> monthIn(std::string_view text)
{
    for (unsigned i = 0; i < std::size(kMonths); ++i) {
        if (text.size() >= 3 && kMonths[i].starts_with(text))
            return i + 1;
    }
    return std::nullopt;
}

TimePoint startOf(int year, unsigned month, unsigned day = 1)
{
    return sys_days(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day));
}

Period wholeMonth(int year, unsigned month)
{
    return {startOf(year, month), month == 12 ? startOf(year + 1, 1) : startOf(year, month + 1)};
}

/// The day that lies so many units before `now`; the last of its month where the month is too short.
TimePoint back(TimePoint now, Unit unit, int count)
{
    const auto today = std::chrono::floor<days>(now);
    year_month_day date(today);
    switch (unit) {
    case Unit::day:
        return today - days(count);
    case Unit::week:
        return today - days(7 * count);
    case Unit::month:
        date -= months(count);
        break;
    case Unit::year:
        date -= years(count);
        break;
    }
    return date.ok() ? sys_days(date) : sys_days(date.year() / date.month() / std::chrono::last);
}

/// The calendar period before the one that holds `now`, or that one itself.
Period calendar(TimePoint now, Unit unit, bool isThis)
{
    const year_month_day today(std::chrono::floor<days>(now));
    const int year = static_cast<int>(today.year());
    if (unit == Unit::year)
        return isThis ? Period{startOf(year, 1), now} : Period{startOf(year - 1, 1), startOf(year, 1)};
    const TimePoint month = startOf(year, static_cast<unsigned>(today.month()));
    if (unit == Unit::month)
        return isThis ? Period{month, now} : Period{back(month, Unit::month, 1), month};
    const int count = unit == Unit::week ? 7 : 1;
    return isThis ? Period{back(now, Unit::day, count), now}
                  : Period{back(now, Unit::day, count), back(now, Unit::day, 0)};
}

std::optional<Taken<Period>> dateAt(std::span<const std::string> words)
{
    const std::string_view first = words.front();
    if (const auto year = yearIn(first))
        return Taken<Period>{{startOf(*year, 1), startOf(*year + 1, 1)}, 1};
    if (first.size() == 10 && first[4] == '-' && first[7] == '-') {
        const auto date = timeFromIso(std::string(first) + "T00:00:00Z");
        return date ? std::optional(Taken<Period>{{*date, *date + days(1)}, 1}) : std::nullopt;
    }
    const auto month = monthIn(first);
    const auto year = month && words.size() > 1 ? yearIn(words[1]) : std::nullopt;
    return year ? std::optional(Taken<Period>{wholeMonth(*year, *month), 2}) : std::nullopt;
}

/// The last such day before today.
std::optional<Period> weekdayIn(std::string_view text, TimePoint now)
{
    const auto* const found = std::ranges::find(kWeekdays, text);
    if (found == std::end(kWeekdays))
        return std::nullopt;
    const std::chrono::weekday day(static_cast<unsigned>(found - std::begin(kWeekdays)));
    const auto yesterday = std::chrono::floor<days>(now) - days(1);
    const TimePoint start = yesterday - (std::chrono::weekday(yesterday) - day);
    return Period{start, start + days(1)};
}

/// "two years", "a month ago", "year" after "last" or "this".
std::optional<Taken<Period>> stretchAt(std::span<const std::string> words, TimePoint now)
{
    constexpr int kMostYears = 100; // far more, and dates would leave what the clock can hold
    std::int64_t count = 1;
    std::size_t used = 1;
    if (const auto number = numberAt(words)) {
        count = number->value;
        used = number->words;
    } else if (words[0] != "a" && words[0] != "an") {
        return std::nullopt;
    }
    const NamedUnit* const unit = words.size() > used ? rowNamed(kTimeUnits, words[used]) : nullptr;
    if (unit == nullptr || (unit->unit == Unit::year && count > kMostYears))
        return std::nullopt;
    ++used;
    if (words.size() > used && words[used] == "ago")
        ++used;
    return Taken<Period>{{back(now, unit->unit, static_cast<int>(count)), now}, used};
}

} // namespace

std::optional<Taken<std::int64_t>> sizeAt(std::span<const std::string> words)
{
    const auto number = words.empty() ? std::nullopt : leadingNumber(words[0]);
    if (!number)
        return std::nullopt;
    const bool isJoined = !number->rest.empty();
    if (!isJoined && words.size() < 2)
        return std::nullopt;
    const NamedValue* const unit = rowNamed(kSizeUnits, isJoined ? number->rest : words[1]);
    const double bytes = unit == nullptr ? -1 : number->value * unit->value;
    if (bytes < 0 || bytes > static_cast<double>(kMostBytes))
        return std::nullopt;
    return Taken<std::int64_t>{static_cast<std::int64_t>(bytes), isJoined ? std::size_t{1} : 2};
}

std::optional<Taken<std::int64_t>> numberAt(std::span<const std::string> words)
{
    if (words.empty())
        return std::nullopt;
    if (const NamedValue* const named = rowNamed(kNumbers, words[0]))
        return Taken<std::int64_t>{static_cast<std::int64_t>(named->value), 1};
    const std::optional<int> number = digits(words[0]);
    return number && *number >= 1 && *number <= kMostListed ? std::optional(Taken<std::int64_t>{*number, 1})
                                                            : std::nullopt;
}

std::optional<Taken<Period>> periodAt(std::span<const std::string> words, TimePoint now)
{
    if (words.empty())
        return std::nullopt;
    if (const auto date = dateAt(words))
        return date;
    if (const auto weekday = weekdayIn(words[0], now))
        return Taken<Period>{*weekday, 1};
    if (words[0] == "yesterday")
        return Taken<Period>{calendar(now, Unit::day, false), 1};
    if (const auto stretch = stretchAt(words, now))
        return stretch;
    const bool isThis = words[0] == "this";
    if (words.size() < 2 || (!isThis && words[0] != "last" && words[0] != "past"))
        return std::nullopt;
    if (const NamedUnit* const unit = rowNamed(kTimeUnits, words[1]))
        return Taken<Period>{calendar(now, unit->unit, isThis), 2};
    if (const auto weekday = weekdayIn(words[1], now))
        return Taken<Period>{*weekday, 2};
    if (const auto stretch = stretchAt(words.subspan(1), now))
        return Taken<Period>{stretch->value, stretch->words + 1};
    return std::nullopt;
}

Moment dayOf(TimePoint bound)
{
    // A message shows days in the person's time zone. At this hour, nearly all of them have the same date.
    constexpr std::chrono::hours kHour{10};
    return {std::chrono::floor<days>(bound) + kHour};
}

} // namespace orlen::AskReader
