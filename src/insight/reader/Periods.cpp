#include "insight/reader/Periods.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <string_view>

namespace orlen::AskReader {

namespace {

using std::chrono::days;
using std::chrono::months;
using std::chrono::sys_days;
using std::chrono::year_month_day;
using std::chrono::years;

constexpr int kFirstYear = 1980;
constexpr int kLastYear = 2100;
constexpr int kMostYears = 100; // far more, and dates would leave what the clock can hold

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

/// Today in another year; the last day of its month where the month is too short.
TimePoint onSomeDay(year_month_day date)
{
    return date.ok() ? sys_days(date) : sys_days(date.year() / date.month() / std::chrono::last);
}

TimePoint startOf(int year, unsigned month, unsigned day = 1)
{
    return onSomeDay(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day));
}

Period wholeMonth(int year, unsigned month)
{
    return {startOf(year, month), month == 12 ? startOf(year + 1, 1) : startOf(year, month + 1)};
}

Period wholeDay(TimePoint day)
{
    return {day, day + days(1)};
}

/// The day that lies so many units before `now`.
TimePoint back(TimePoint now, TimeUnit unit, int count)
{
    const auto today = std::chrono::floor<days>(now);
    const year_month_day date(today);
    switch (unit) {
    case TimeUnit::day:
        return today - days(count);
    case TimeUnit::week:
        return today - days(7 * count);
    case TimeUnit::month:
        return onSomeDay(date - months(count));
    case TimeUnit::year:
        return onSomeDay(date - years(count));
    }
    return now;
}

/// The calendar period before the one that holds `now`, or that one itself.
Period calendar(TimePoint now, TimeUnit unit, bool isCurrent)
{
    const year_month_day today(std::chrono::floor<days>(now));
    const int year = static_cast<int>(today.year());
    if (unit == TimeUnit::year)
        return isCurrent ? Period{startOf(year, 1), now} : Period{startOf(year - 1, 1), startOf(year, 1)};
    const TimePoint month = startOf(year, static_cast<unsigned>(today.month()));
    if (unit == TimeUnit::month)
        return isCurrent ? Period{month, now} : Period{back(month, TimeUnit::month, 1), month};
    const int count = unit == TimeUnit::week ? 7 : 1;
    return isCurrent ? Period{back(now, TimeUnit::day, count), now}
                     : Period{back(now, TimeUnit::day, count), back(now, TimeUnit::day, 0)};
}

/// Takes the parts of one period off the words.
class PeriodReader {
public:
    PeriodReader(std::span<const std::string> words, const Lexicon& lexicon, TimePoint now)
        : m_words(words), m_lexicon(lexicon), m_now(now)
    {
    }

    std::optional<Taken<Period>> period()
    {
        for (const auto read : {&PeriodReader::inFigures, &PeriodReader::withMonth, &PeriodReader::onWeekday,
                                &PeriodReader::daysAgo, &PeriodReader::stretch, &PeriodReader::ofCalendar}) {
            m_at = 0;
            if (const auto found = (this->*read)())
                return Taken<Period>{*found, m_at};
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] std::span<const std::string> rest() const { return m_words.subspan(m_at); }
    [[nodiscard]] bool isDone() const { return m_at >= m_words.size(); }

    std::optional<int> take(Figure figure)
    {
        const auto found = isDone() ? std::nullopt : figureAt(figure, rest(), m_lexicon);
        if (!found)
            return std::nullopt;
        m_at += found->words;
        return static_cast<int>(found->value);
    }

    std::optional<int> takeNumber(int most)
    {
        const auto found = isDone() ? std::nullopt : numberAt(rest(), m_lexicon);
        if (!found || found->value > most)
            return std::nullopt;
        m_at += found->words;
        return static_cast<int>(found->value);
    }

    std::optional<int> takeYear()
    {
        const auto year = isDone() ? std::nullopt : yearIn(m_words[m_at]);
        m_at += year ? 1 : 0;
        return year;
    }

    std::optional<int> takeYearBehind()
    {
        const std::size_t at = m_at;
        while (take(Figure::ofDate)) {
        }
        const auto year = takeYear();
        if (!year)
            m_at = at;
        return year;
    }

    /// "2023", "2024-05-31", "31.5.2024"
    std::optional<Period> inFigures()
    {
        const std::string& word = m_words[0];
        if (const auto year = takeYear())
            return Period{startOf(*year, 1), startOf(*year + 1, 1)};
        m_at = 1;
        if (word.size() == 10 && word[4] == '-' && word[7] == '-') {
            const auto date = timeFromIso(word + "T00:00:00Z");
            return date ? std::optional(wholeDay(*date)) : std::nullopt;
        }
        return dayFirst(word);
    }

    /// In English the month may come first: only what can be read in one way counts.
    [[nodiscard]] std::optional<Period> dayFirst(std::string_view word) const
    {
        const std::size_t first = word.find_first_of("./");
        const std::size_t second =
            first == std::string_view::npos ? first : word.find(word[first], first + 1);
        if (second == std::string_view::npos)
            return std::nullopt;
        auto day = digits(word.substr(0, first));
        auto month = digits(word.substr(first + 1, second - first - 1));
        const auto year = yearIn(word.substr(second + 1));
        if (!day || !month || !year)
            return std::nullopt;
        constexpr int kMonths = 12;
        const bool isEnglish = &m_lexicon == Lexicon::all().data();
        if (isEnglish && *month > kMonths)
            std::swap(day, month);
        else if (isEnglish && *day <= kMonths && *day != *month)
            return std::nullopt;
        const year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                                  std::chrono::day(static_cast<unsigned>(*day))};
        return date.ok() ? std::optional(wholeDay(sys_days(date))) : std::nullopt;
    }

    /// "march 2024", "3 de marzo de 2024", "march 3 2024", "december"
    std::optional<Period> withMonth()
    {
        constexpr int kDays = 31;
        std::optional<int> day = takeNumber(kDays);
        while (day && take(Figure::ofDate)) {
        }
        const bool isAlsoAWord = !isDone() && m_lexicon.find(m_words[m_at]) != nullptr;
        const auto month = take(Figure::month);
        if (!month)
            return std::nullopt;
        std::optional<int> year = takeYearBehind();
        if (!year && !day) {
            const std::size_t at = m_at;
            day = takeNumber(kDays);
            year = day ? takeYearBehind() : std::nullopt;
            if (!year) {
                day.reset();
                m_at = at;
            }
        }
        if (!year && (isAlsoAWord || day))
            return std::nullopt;
        const auto number = static_cast<unsigned>(*month);
        if (year)
            return day ? wholeDay(startOf(*year, number, static_cast<unsigned>(*day)))
                       : wholeMonth(*year, number);
        Period latest =
            wholeMonth(static_cast<int>(year_month_day(std::chrono::floor<days>(m_now)).year()), number);
        if (latest.from > m_now)
            latest = {back(latest.from, TimeUnit::year, 1), back(latest.to, TimeUnit::year, 1)};
        latest.isAnyYear = true;
        return latest;
    }

    /// "monday", "last monday", "lundi dernier"
    std::optional<Period> onWeekday()
    {
        take(Figure::previous);
        const auto weekday = take(Figure::weekday);
        if (!weekday)
            return std::nullopt;
        take(Figure::previous);
        const auto today = std::chrono::floor<days>(m_now);
        const days since =
            std::chrono::weekday(today) - std::chrono::weekday(static_cast<unsigned>(*weekday));
        return wholeDay(today - (since == days(0) ? days(7) : since));
    }

    std::optional<Period> daysAgo()
    {
        const auto count = take(Figure::daysAgo);
        return count ? std::optional(wholeDay(back(m_now, TimeUnit::day, *count))) : std::nullopt;
    }

    /// "two years", "a month ago", "vor einem Jahr", "les 3 derniers mois"
    std::optional<Period> stretch()
    {
        const bool isAgo = take(Figure::agoBefore).has_value();
        take(Figure::previous);
        const std::optional<int> count = takeNumber(1'000);
        take(Figure::previous);
        const bool isSingle = !count && !isDone() && isArticle(m_words[m_at]);
        if (isSingle)
            ++m_at;
        const auto unit = take(Figure::timeUnit);
        if (!unit)
            return std::nullopt;
        const bool isBehind = take(Figure::ago).has_value();
        if (count && !isBehind)
            take(Figure::previous);
        const bool isOne = isSingle && (isAgo || isBehind || m_words[m_at - 2] == "a");
        if (!count && !isOne)
            return std::nullopt;
        if (static_cast<TimeUnit>(*unit) == TimeUnit::year && count.value_or(1) > kMostYears)
            return std::nullopt;
        return Period{back(m_now, static_cast<TimeUnit>(*unit), count.value_or(1)), m_now};
    }

    [[nodiscard]] bool isArticle(const std::string& word) const
    {
        const auto* const entry = m_lexicon.find(word);
        return entry != nullptr && entry->sense == Sense::filler;
    }

    /// "last month", "le mois dernier", "this year"
    std::optional<Period> ofCalendar()
    {
        bool isPrevious = take(Figure::previous).has_value();
        const bool isCurrent = !isPrevious && take(Figure::current).has_value();
        const auto unit = take(Figure::timeUnit);
        if (!unit)
            return std::nullopt;
        isPrevious = isPrevious || take(Figure::previous).has_value();
        if (!isPrevious && !isCurrent)
            return std::nullopt;
        return calendar(m_now, static_cast<TimeUnit>(*unit), !isPrevious);
    }

    std::span<const std::string> m_words;
    const Lexicon& m_lexicon;
    TimePoint m_now;
    std::size_t m_at = 0;
};

} // namespace

std::optional<Taken<Period>> periodAt(std::span<const std::string> words, const Lexicon& lexicon,
                                      TimePoint now)
{
    return words.empty() ? std::nullopt : PeriodReader(words, lexicon, now).period();
}

Period coming(const Period& period, TimePoint now)
{
    if (!period.isAnyYear || period.to > now)
        return period;
    return {back(period.from, TimeUnit::year, -1), back(period.to, TimeUnit::year, -1), true};
}

Moment dayOf(TimePoint bound)
{
    // A message shows days in the person's time zone. At this hour, nearly all of them have the same date.
    constexpr std::chrono::hours kHour{10};
    return {std::chrono::floor<days>(bound) + kHour};
}

} // namespace orlen::AskReader
