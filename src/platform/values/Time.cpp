#include "platform/values/Time.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace orlen {

namespace {

/// The number in `digits`; nothing if any character is not a digit.
std::optional<int> number(std::string_view digits)
{
    int value = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

} // namespace

std::string isoText(TimePoint time)
{
    using namespace std::chrono;
    const auto second = floor<seconds>(time);
    const auto day = floor<days>(second);
    const year_month_day date(day);
    const hh_mm_ss clock(second - day);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text.data();
}

std::optional<TimePoint> timeFromIso(std::string_view text)
{
    using namespace std::chrono;
    constexpr std::string_view kForm = "0000-00-00T00:00:00Z";
    if (text.size() != kForm.size())
        return std::nullopt;
    for (const std::size_t at : {4U, 7U, 10U, 13U, 16U, 19U}) {
        if (text[at] != kForm[at])
            return std::nullopt;
    }
    const auto y = number(text.substr(0, 4));
    const auto mo = number(text.substr(5, 2));
    const auto d = number(text.substr(8, 2));
    const auto h = number(text.substr(11, 2));
    const auto mi = number(text.substr(14, 2));
    const auto s = number(text.substr(17, 2));
    if (!y || !mo || !d || !h || !mi || !s || *h > 23 || *mi > 59 || *s > 59)
        return std::nullopt;
    const year_month_day date(year(*y), month(static_cast<unsigned>(*mo)), day(static_cast<unsigned>(*d)));
    // Times further apart would overflow 64 bits of nanoseconds.
    if (!date.ok() || *y < 1900 || *y > 2190)
        return std::nullopt;
    return TimePoint(sys_days(date)) + hours(*h) + minutes(*mi) + seconds(*s);
}

} // namespace orlen
