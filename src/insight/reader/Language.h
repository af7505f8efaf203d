#pragma once

#include "insight/reader/Calendar.h"
#include "insight/reader/Sense.h"
#include "insight/reader/Subjects.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The words of the languages in which questions are understood, as tables. To teach a language another word,
/// add it to a row; phrases are separated by commas, and a phrase that several rows list belongs to the
/// first. "(does|will) it (ever|) delete" stands for four phrases. Case and accents don't matter. A typing
/// error, and so most endings, is forgiven in words of five letters or more: a row need not list every form.
namespace orlen::AskReader {

struct WordRow {
    Sense sense;
    std::string_view words;
};

struct SubjectRow {
    SubjectID subject;
    std::string_view words;
};

/// Single words of which numbers, sizes and dates are made.
enum class Figure : std::uint8_t {
    number,
    ordinal,   ///< the value counts from 1
    sizeUnit,  ///< the value is in bytes
    timeUnit,  ///< the value is a `TimeUnit`
    month,     ///< 1 to 12
    weekday,   ///< 0: Sunday
    daysAgo,   ///< "yesterday": 1
    ago,       ///< stands behind: "two years ago"
    agoBefore, ///< stands before: "vor zwei Jahren"
    previous,  ///< "last" of "last month" or "le mois dernier"
    current,   ///< "this" of "this month"
    following, ///< "next" of "next month" or "le mois prochain"
    ahead,     ///< "in" of "in two weeks"
    daysAhead, ///< "tomorrow": 1
    namedDay,  ///< the value is a `NamedDay`
    endOf,     ///< "end of", with the unit behind it: -1; else the value is a `TimeUnit`: "year-end"
    ofDate,    ///< may stand within a date: "3 de marzo de 2024"
    fromDate,  ///< says "since" before a date, and else nothing: "dal 3 maggio"
};
inline constexpr std::size_t kFigures = 18;

constexpr double valueOf(NamedDay day)
{
    return static_cast<double>(day);
}

struct FigureRow {
    Figure figure;
    std::string_view words;
    double value = 0;
};

struct Language {
    /// Of Orlen itself. A phrase that stands here and in `words` belongs here.
    std::span<const WordRow> ofOrlen;
    std::span<const WordRow> words;
    std::span<const SubjectRow> subjects;
    std::span<const FigureRow> figures;
    /// Words that lose their last vowel before another word: "l" of "l'espace".
    std::string_view elided;
    bool hasCompounds = false; ///< writes several words as one: "Downloadordner"
    /// Words of which one stands for a single thing: "file", where "files" would be several.
    std::string_view ones;
    /// More words: of space, sizes, order, dates and places. A phrase that stands in `words`, too, belongs
    /// there.
    std::span<const WordRow> measures{};
    /// Articles that stand for a thing at the end of a clause or before a verb: "las" of "si las borro".
    std::string_view clitics{};
    bool joinsClitics = false; ///< writes them behind a verb, in one word: "borrarlas"
    /// What a list has not shown yet: "more", "the rest".
    std::string_view others{};
};

[[nodiscard]] const Language& english();
[[nodiscard]] const Language& german();
[[nodiscard]] const Language& french();
[[nodiscard]] const Language& spanish();
[[nodiscard]] const Language& italian();

} // namespace orlen::AskReader
