#include "platform/text/Figures.h"

#include "platform/text/ByteCount.h"

#include <unicode/datefmt.h>
#include <unicode/dtptngen.h>
#include <unicode/listformatter.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <cmath>
#include <mutex>
#include <utility>
#include <vector>

namespace orlen {

namespace {

using icu::number::LocalizedNumberFormatter;
using icu::number::NumberFormatter;
using icu::number::Precision;

std::string utf8(const icu::UnicodeString& text)
{
    std::string bytes;
    text.toUTF8String(bytes);
    return bytes;
}

LocalizedNumberFormatter withUnit(const icu::Locale& locale, const icu::MeasureUnit& unit,
                                  UNumberUnitWidth width)
{
    return NumberFormatter::withLocale(locale).unit(unit).unitWidth(width).precision(
        Precision::maxFraction(1));
}

/// In the order of `ByteAmount::Unit`.
std::array<LocalizedNumberFormatter, 5> byteFormats(const icu::Locale& locale)
{
    using icu::MeasureUnit;
    constexpr UNumberUnitWidth kShort = UNUM_UNIT_WIDTH_SHORT;
    return {withUnit(locale, MeasureUnit::getByte(), UNUM_UNIT_WIDTH_FULL_NAME),
            withUnit(locale, MeasureUnit::getKilobyte(), kShort),
            withUnit(locale, MeasureUnit::getMegabyte(), kShort),
            withUnit(locale, MeasureUnit::getGigabyte(), kShort),
            withUnit(locale, MeasureUnit::getTerabyte(), kShort)};
}

/// A format of dates, which is made when it is first used: that takes a millisecond. ICU's own may be used by
/// one thread at a time.
class DateFormat {
public:
    using Make = icu::DateFormat* (*)(const icu::Locale& locale);

    DateFormat(icu::Locale locale, Make make) : m_locale(std::move(locale)), m_make(make) {}

    [[nodiscard]] std::string text(TimePoint time) const
    {
        const std::chrono::duration<double, std::milli> sinceEpoch = time.time_since_epoch();
        const std::lock_guard lock(m_mutex);
        if (!m_format)
            m_format.reset(m_make(m_locale));
        if (!m_format)
            return isoText(time);
        icu::UnicodeString text;
        return utf8(m_format->format(sinceEpoch.count(), text));
    }

private:
    icu::Locale m_locale;
    Make m_make;
    mutable std::mutex m_mutex;
    mutable std::unique_ptr<icu::DateFormat> m_format;
};

icu::DateFormat* dateFormat(const icu::Locale& locale)
{
    return icu::DateFormat::createDateInstance(icu::DateFormat::kShort, locale);
}

icu::DateFormat* longDateFormat(const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    return icu::DateFormat::createInstanceForSkeleton("yMMMd", locale, status);
}

icu::DateFormat* dateAndTimeFormat(const icu::Locale& locale)
{
    return icu::DateFormat::createDateTimeInstance(icu::DateFormat::kShort, icu::DateFormat::kShort, locale);
}

/// The number alone: the words around it are the message's.
icu::DateFormat* yearFormat(const icu::Locale& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    return new icu::SimpleDateFormat(icu::UnicodeString(u"y"), locale, status);
}

/// "1 March 2025", in UTC.
std::string englishDate(TimePoint time)
{
    constexpr std::array<std::string_view, 12> kMonths{"January",   "February", "March",    "April",
                                                       "May",       "June",     "July",     "August",
                                                       "September", "October",  "November", "December"};
    const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(time));
    return std::to_string(static_cast<unsigned>(date.day())) + ' ' +
           std::string(kMonths[static_cast<unsigned>(date.month()) - 1]) + ' ' +
           std::to_string(static_cast<int>(date.year()));
}

} // namespace

struct Figures::Formats {
    explicit Formats(const icu::Locale& used)
        : locale(used), isEnglish(std::string_view(locale.getLanguage()) == "en"),
          number(NumberFormatter::withLocale(locale)), bytes(byteFormats(locale)),
          percent(NumberFormatter::withLocale(locale)
                      .unit(icu::MeasureUnit::getPercent())
                      .precision(Precision::integer())),
          milliseconds(withUnit(locale, icu::MeasureUnit::getMillisecond(), UNUM_UNIT_WIDTH_SHORT)),
          kilohertz(withUnit(locale, icu::MeasureUnit::getKilohertz(), UNUM_UNIT_WIDTH_SHORT)),
          seconds(withUnit(locale, icu::MeasureUnit::getSecond(), UNUM_UNIT_WIDTH_SHORT)),
          minutes(withUnit(locale, icu::MeasureUnit::getMinute(), UNUM_UNIT_WIDTH_SHORT)),
          date(locale, dateFormat), longDate(locale, longDateFormat), dateAndTime(locale, dateAndTimeFormat),
          year(locale, yearFormat)
    {
        UErrorCode status = U_ZERO_ERROR;
        list.reset(icu::ListFormatter::createInstance(locale, status));
    }

    /// A value with its unit, which a line break does not part.
    [[nodiscard]] std::string amount(const LocalizedNumberFormatter& format, double value) const
    {
        constexpr char16_t kNoBreakSpace = u'\u00A0';
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString text = format.formatDouble(value, status).toString(status);
        for (std::int32_t at = text.indexOf(u' '); at >= 0; at = text.indexOf(u' ', at))
            text.setCharAt(at, kNoBreakSpace);
        return utf8(text);
    }

    icu::Locale locale;
    bool isEnglish;
    LocalizedNumberFormatter number;
    std::array<LocalizedNumberFormatter, 5> bytes;
    LocalizedNumberFormatter percent;
    LocalizedNumberFormatter milliseconds;
    LocalizedNumberFormatter kilohertz;
    LocalizedNumberFormatter seconds;
    LocalizedNumberFormatter minutes;
    DateFormat date;
    DateFormat longDate;
    DateFormat dateAndTime;
    DateFormat year;
    std::unique_ptr<icu::ListFormatter> list;
};

Figures::Figures() = default;
Figures::~Figures() = default;

Figures::Figures(const std::string& locale)
    : m_formats(std::make_unique<Formats>(icu::Locale::createCanonical(locale.c_str())))
{
}

const Figures& Figures::plain()
{
    static const Figures plain;
    return plain;
}

std::string Figures::number(std::int64_t value) const
{
    if (!m_formats)
        return std::to_string(value);
    UErrorCode status = U_ZERO_ERROR;
    return utf8(m_formats->number.formatInt(value, status).toString(status));
}

std::string Figures::bytes(std::int64_t bytes) const
{
    if (!m_formats || m_formats->isEnglish)
        return byteCount(bytes);
    const ByteAmount amount = ByteAmount::of(bytes);
    return m_formats->amount(m_formats->bytes[static_cast<std::size_t>(amount.unit)],
                             static_cast<double>(amount.whole) + amount.tenths / 10.0);
}

std::string Figures::frequency(std::int64_t hertz) const
{
    constexpr double kThousand = 1'000;
    const double tenths = std::round(static_cast<double>(hertz) / (kThousand / 10));
    if (m_formats)
        return m_formats->amount(m_formats->kilohertz, tenths / 10);
    std::string text = std::to_string(std::llround(tenths) / 10);
    if (const auto tenth = std::llround(tenths) % 10; tenth != 0)
        text += '.' + std::to_string(tenth);
    return text + " kHz";
}

std::string Figures::language(const std::string& tag) const
{
    if (!m_formats)
        return tag;
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString name;
    const icu::Locale named = icu::Locale::forLanguageTag(tag, status);
    if (U_FAILURE(status) || *named.getLanguage() == '\0')
        return tag;
    return utf8(named.getDisplayName(m_formats->locale, name));
}

std::string Figures::percent(double share) const
{
    const auto whole = std::llround(share * 100);
    if (!m_formats)
        return std::to_string(whole) + " %";
    return m_formats->amount(m_formats->percent, static_cast<double>(whole));
}

std::string Figures::duration(std::chrono::duration<double> time) const
{
    const double seconds = time.count();
    const auto tenths = std::llround(seconds * 10);
    const auto whole = std::llround(seconds);
    const auto written = [&](const LocalizedNumberFormatter Formats::*format, double value,
                             const char* unit) {
        if (m_formats && !m_formats->isEnglish)
            return m_formats->amount((*m_formats).*format, value);
        std::string text = std::to_string(static_cast<std::int64_t>(value));
        if (const auto tenth = std::llround(value * 10) % 10; tenth != 0)
            text += '.' + std::to_string(tenth);
        return text + unit;
    };
    if (tenths == 0)
        return written(&Formats::milliseconds, static_cast<double>(std::llround(seconds * 1'000)), " ms");
    if (tenths < 100)
        return written(&Formats::seconds, static_cast<double>(tenths) / 10, " s");
    if (whole < 60)
        return written(&Formats::seconds, static_cast<double>(whole), " s");
    const auto minutes = whole / 60;
    return written(&Formats::minutes, static_cast<double>(minutes), " min") + ' ' +
           written(&Formats::seconds, static_cast<double>(whole % 60), " s");
}

std::string Figures::date(TimePoint time) const
{
    return m_formats ? m_formats->date.text(time) : isoText(time).substr(0, 10);
}

std::string Figures::longDate(TimePoint time) const
{
    return m_formats ? m_formats->longDate.text(time) : englishDate(time);
}

std::string Figures::dateAndTime(TimePoint time) const
{
    return m_formats ? m_formats->dateAndTime.text(time) : isoText(time).substr(0, 16);
}

std::string Figures::year(TimePoint time) const
{
    return m_formats ? m_formats->year.text(time) : isoText(time).substr(0, 4);
}

std::string Figures::list(std::span<const std::string> parts) const
{
    if (m_formats && m_formats->list) {
        std::vector<icu::UnicodeString> texts;
        for (const std::string& part : parts)
            texts.push_back(icu::UnicodeString::fromUTF8(part));
        UErrorCode status = U_ZERO_ERROR;
        icu::UnicodeString text;
        m_formats->list->format(texts.data(), static_cast<std::int32_t>(texts.size()), text, status);
        if (U_SUCCESS(status))
            return utf8(text);
    }
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0)
            text += i + 1 < parts.size() ? ", " : " and ";
        text += parts[i];
    }
    return text;
}

} // namespace orlen
