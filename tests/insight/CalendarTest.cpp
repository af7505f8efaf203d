#include "insight/reader/Calendar.h"

#include <gtest/gtest.h>

#include <string>

namespace orlen {
namespace {

using AskReader::Period;

TimePoint day(const std::string& date)
{
    return *timeFromIso(date + "T00:00:00Z");
}

} // namespace

TEST(CalendarTest, easterFallsOnTheSundayOfTheCalendar)
{
    for (const char* date : {"1981-04-19", "2000-04-23", "2008-03-23", "2011-04-24", "2026-04-05",
                             "2027-03-28", "2038-04-25", "2049-04-18", "2076-04-19"}) {
        const std::string text = date;
        EXPECT_EQ(AskReader::easterSunday(std::stoi(text.substr(0, 4))), day(text)) << date;
    }
}

TEST(CalendarTest, aNamedDayIsTheLastOneAndTheNext)
{
    const Period easter = AskReader::around(AskReader::NamedDay::easter, day("2026-06-01"));
    EXPECT_EQ(easter.from, day("2026-04-05"));
    EXPECT_EQ(AskReader::coming(easter).from, day("2027-03-28"));
    const Period summer = AskReader::around(AskReader::NamedDay::summer, day("2026-06-01"));
    EXPECT_EQ(summer.from, day("2025-06-21"));
    EXPECT_EQ(AskReader::coming(summer).from, day("2026-06-21"));
    // On the day itself, that day is the one to come.
    EXPECT_EQ(AskReader::coming(AskReader::around(AskReader::NamedDay::christmas, day("2026-12-25"))).from,
              day("2026-12-25"));
    // A winter that began last year is not over.
    EXPECT_EQ(AskReader::coming(AskReader::around(AskReader::NamedDay::winter, day("2026-02-01"))).from,
              day("2025-12-21"));
    // A Monday: the last one is a week ago.
    EXPECT_EQ(AskReader::around(1U, day("2026-06-01")).from, day("2026-05-25"));
    EXPECT_EQ(AskReader::coming(AskReader::around(1U, day("2026-06-01"))).from, day("2026-06-08"));
}

TEST(CalendarTest, unitsEndWhereTheCalendarSays)
{
    using AskReader::TimeUnit;
    EXPECT_EQ(AskReader::endOf(day("2028-02-10"), TimeUnit::month).from, day("2028-02-29"));
    EXPECT_EQ(AskReader::endOf(day("2026-12-31"), TimeUnit::year).from, day("2026-12-31"));
    EXPECT_EQ(AskReader::calendar(day("2026-12-31"), TimeUnit::month, 1).from, day("2027-01-01"));
    EXPECT_EQ(AskReader::calendar(day("2026-01-31"), TimeUnit::month, -1).from, day("2025-12-01"));
    EXPECT_EQ(AskReader::back(day("2026-01-31"), TimeUnit::month, -1), day("2026-02-28"));
}

} // namespace orlen
