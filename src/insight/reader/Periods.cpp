#include "insight/reader/Periods.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

namespace orlen::AskReader {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr int kFirstYear = 1980;
constexpr int kLastYear = 2100;
constexpr int kMostYears = 100; // far more, and dates would leave what the clock can hold
constexpr int kDaysInMonth = 31;

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

/// "20", "20th", "1er", "3."
std::optional<int> dayOfMonthIn(std::string_view text)
{
    const std::size_t end = std::min(text.find_first_not_of("0123456789"), text.size());
    const std::optional<int> day = digits(text.substr(0, end));
    constexpr std::size_t kLongestEnding = 2;
    return day && *day >= 1 && *day <= kDaysInMonth && text.size() <= end + kLongestEnding ? day
                                                                                           : std::nullopt;
}

/// Takes the parts of one period off the words.
class PeriodReader {
public:
    PeriodReader(std::span<const std::string> words, const Lexicon& lexicon, TimePoint now, bool isExpected)
        : m_words(words), m_lexicon(lexicon), m_now(now), m_isExpected(isExpected)
    {
    }

    std::optional<Taken<Period>> period()
    {
        for (const auto read : {&PeriodReader::inFigures, &PeriodReader::withMonth, &PeriodReader::onNamedDay,
                                &PeriodReader::onWeekday, &PeriodReader::daysFromNow, &PeriodReader::stretch,
                                &PeriodReader::ofCalendar, &PeriodReader::atEnd}) {
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
            return wholeYear(*year);
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

    /// A day of the month; never the number of a size: "may 5 gb".
    std::optional<unsigned> takeDay()
    {
        if (isDone() || sizeAt(rest(), m_lexicon))
            return std::nullopt;
        const auto named = m_lexicon.figure(Figure::ordinal, m_words[m_at]);
        const auto day = named ? std::optional(static_cast<int>(*named)) : dayOfMonthIn(m_words[m_at]);
        m_at += day ? 1 : 0;
        return day ? std::optional(static_cast<unsigned>(*day)) : std::nullopt;
    }

    /// "march 2024", "3 de marzo de 2024", "march 3 2024", "may 20th", "december"
    std::optional<Period> withMonth()
    {
        std::optional<unsigned> day = takeDay();
        while (day && take(Figure::ofDate)) {
        }
        const bool isAlsoAWord = !isDone() && m_lexicon.find(m_words[m_at]) != nullptr;
        const auto named = take(Figure::month);
        if (!named)
            return std::nullopt;
        const auto month = static_cast<unsigned>(*named);
        std::optional<int> year = takeYearBehind();
        if (!year && !day) {
            day = takeDay();
            year = day ? takeYearBehind() : std::nullopt;
        }
        if (!year && !day && isAlsoAWord && !m_isExpected)
            return std::nullopt;
        if (!year)
            return inAnyYear(month, day, m_now);
        return day ? wholeDay(startOf(*year, month, *day)) : wholeMonth(*year, month);
    }

    /// "christmas", "easter 2025", "last summer", "noël prochain"
    std::optional<Period> onNamedDay()
    {
        bool isPrevious = take(Figure::previous).has_value();
        bool isNext = !isPrevious && take(Figure::following).has_value();
        const auto named = take(Figure::namedDay);
        if (!named)
            return std::nullopt;
        const auto day = static_cast<NamedDay>(*named);
        isPrevious = isPrevious || take(Figure::previous);
        isNext = isNext || take(Figure::following);
        if (const auto year = takeYearBehind()) {
            const Span span = inYear(day, *year);
            return Period{span.from, span.to};
        }
        const Period period = around(day, m_now);
        if (isPrevious)
            return Period{period.from, period.to};
        return isNext ? Period{period.next->from, period.next->to, {}, true} : period;
    }

    /// "monday", "last monday", "lundi prochain"
    std::optional<Period> onWeekday()
    {
        bool isPrevious = take(Figure::previous).has_value();
        bool isNext = !isPrevious && take(Figure::following).has_value();
        const auto weekday = take(Figure::weekday);
        if (!weekday)
            return std::nullopt;
        isPrevious = take(Figure::previous) || isPrevious;
        isNext = take(Figure::following) || isNext;
        const Period period = around(static_cast<unsigned>(*weekday), m_now);
        if (isPrevious)
            return Period{period.from, period.to};
        return isNext ? Period{period.next->from, period.next->to, {}, true} : period;
    }

    /// "yesterday", "tomorrow"
    std::optional<Period> daysFromNow()
    {
        if (const auto count = take(Figure::daysAgo)) {
            Period day = wholeDay(back(m_now, TimeUnit::day, *count));
            day.isToday = *count == 0;
            return day;
        }
        const auto count = take(Figure::daysAhead);
        if (!count)
            return std::nullopt;
        Period day = wholeDay(back(m_now, TimeUnit::day, -*count));
        day.isAhead = true;
        return day;
    }

    /// "two years", "a month ago", "vor einem Jahr", "les 3 derniers mois", "in three weeks"
    std::optional<Period> stretch()
    {
        const bool isAgo = take(Figure::agoBefore).has_value();
        bool isAhead = !isAgo && take(Figure::ahead).has_value();
        bool isPast = take(Figure::previous).has_value();
        isAhead = (!isPast && take(Figure::following)) || isAhead;
        const std::optional<int> count = takeNumber(1'000);
        isPast = take(Figure::previous) || isPast;
        isAhead = take(Figure::following) || isAhead;
        const bool isSingle =
            !count && !isDone() && (isArticle(m_words[m_at]) || isIndefinite(m_words[m_at]));
        if (isSingle)
            ++m_at;
        const auto named = take(Figure::timeUnit);
        if (!named)
            return std::nullopt;
        const auto unit = static_cast<TimeUnit>(*named);
        const bool isBehind = take(Figure::ago).has_value();
        if (count && !isBehind) {
            isPast = take(Figure::previous) || isPast;
            isAhead = take(Figure::following) || isAhead;
        }
        const bool isOne = isSingle && (isAgo || isBehind || isAhead || m_words[m_at - 2] == "a" ||
                                        (m_isExpected && isIndefinite(m_words[m_at - 2])));
        if ((!count && !isOne) || (unit == TimeUnit::year && count.value_or(1) > kMostYears))
            return std::nullopt;
        Period period{back(m_now, unit, count.value_or(1)), m_now};
        if (isAgo || isBehind || isPast)
            return period;
        const TimePoint then = back(m_now, unit, -count.value_or(1));
        period.next = Span{then, then + days(1)};
        period.isAhead = isAhead;
        return period;
    }

    /// "Older than a year", in any of the languages.
    [[nodiscard]] static bool isIndefinite(std::string_view word)
    {
        constexpr std::string_view kArticles[] = {"an",    "one", "ein", "eine", "einem", "einen",
                                                  "einer", "un",  "une", "uno",  "una"};
        return std::ranges::find(kArticles, word) != std::end(kArticles);
    }

    [[nodiscard]] bool isArticle(const std::string& word) const
    {
        const auto* const entry = m_lexicon.find(word);
        return entry != nullptr && entry->sense == Sense::filler;
    }

    /// "last month", "le mois prochain", "this year"
    std::optional<Period> ofCalendar()
    {
        bool isPrevious = take(Figure::previous).has_value();
        bool isNext = !isPrevious && take(Figure::following).has_value();
        bool isCurrent = !isPrevious && !isNext && take(Figure::current).has_value();
        if (!isPrevious && !isNext && !isCurrent && m_isExpected) {
            // "Since the beginning of | the year"
            while (!isDone() && isArticle(m_words[m_at]))
                ++m_at;
            isCurrent = true;
        }
        const auto unit = take(Figure::timeUnit);
        if (!unit)
            return std::nullopt;
        isPrevious = isPrevious || take(Figure::previous);
        isNext = isNext || (!isPrevious && take(Figure::following));
        isCurrent = isCurrent && !isPrevious;
        if (!isPrevious && !isCurrent && !isNext)
            return std::nullopt;
        return calendar(m_now, static_cast<TimeUnit>(*unit), isNext ? 1 : isCurrent ? 0 : -1);
    }

    /// "the end of the year", "ende juli", "fin 2027", "jahresende"
    std::optional<Period> atEnd()
    {
        const auto end = take(Figure::endOf);
        if (!end)
            return std::nullopt;
        if (*end >= 0)
            return endOf(m_now, static_cast<TimeUnit>(*end));
        while (take(Figure::ofDate) || take(Figure::current)) {
        }
        bool isNext = take(Figure::following).has_value();
        if (const auto unit = take(Figure::timeUnit)) {
            isNext = take(Figure::following) || isNext;
            const auto ofUnit = static_cast<TimeUnit>(*unit);
            return endOf(isNext ? calendar(m_now, ofUnit, 1).from : m_now, ofUnit);
        }
        const auto month = take(Figure::month);
        const auto year = takeYearBehind();
        if (!month && !year)
            return std::nullopt;
        const Period whole = !month ? wholeYear(*year)
                             : year ? wholeMonth(*year, static_cast<unsigned>(*month))
                                    : coming(inAnyYear(static_cast<unsigned>(*month), {}, m_now));
        return Period{whole.to - days(1), whole.to, {}, whole.to > m_now};
    }

    std::span<const std::string> m_words;
    const Lexicon& m_lexicon;
    TimePoint m_now;
    bool m_isExpected;
    std::size_t m_at = 0;
};

} // namespace

std::optional<Taken<Period>> periodAt(std::span<const std::string> words, const Lexicon& lexicon,
                                      TimePoint now, bool isExpected)
{
    return words.empty() ? std::nullopt : PeriodReader(words, lexicon, now, isExpected).period();
}

Moment dayOf(TimePoint bound)
{
    // A message shows days in the person's time zone. At this hour, nearly all of them have the same date.
    constexpr std::chrono::hours kHour{10};
    return {std::chrono::floor<days>(bound) + kHour};
}

} // namespace orlen::AskReader
