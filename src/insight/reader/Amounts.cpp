#include "insight/reader/Amounts.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace orlen::AskReader {

namespace {

struct NamedValue {
    std::string_view name;
    double value;
};

/// Known in every language, beside its own.
constexpr NamedValue kSizeUnits[] = {
    {"b", 1},           {"byte", 1},       {"bytes", 1},        {"k", 1e3},
    {"kb", 1e3},        {"kilobyte", 1e3}, {"kilobytes", 1e3},  {"mb", 1e6},
    {"mbs", 1e6},       {"meg", 1e6},      {"megs", 1e6},       {"megabyte", 1e6},
    {"megabytes", 1e6}, {"g", 1e9},        {"gb", 1e9},         {"gbs", 1e9},
    {"gig", 1e9},       {"gigs", 1e9},     {"gbyte", 1e9},      {"gigabyte", 1e9},
    {"gigabytes", 1e9}, {"tb", 1e12},      {"terabyte", 1e12},  {"terabytes", 1e12},
    {"kib", 1024},      {"mib", 1048576},  {"gib", 1073741824}, {"tib", 1099511627776},
};

constexpr std::int64_t kMostListed = 1'000;

/// Bytes of one unit.
std::optional<double> unitNamed(const std::string& name, const Lexicon& lexicon)
{
    const auto* const found = std::ranges::find(kSizeUnits, name, &NamedValue::name);
    return found == std::end(kSizeUnits) ? lexicon.figure(Figure::sizeUnit, name)
                                         : std::optional(found->value);
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

/// "A gigabyte", in any of the languages.
constexpr std::string_view kArticles[] = {"a",     "an", "one", "ein", "einem",
                                          "einen", "un", "une", "uno", "una"};

std::optional<Leading> numberBefore(const std::string& word, const Lexicon& lexicon)
{
    if (std::ranges::find(kArticles, word) != std::end(kArticles))
        return Leading{1, {}};
    if (const auto named = lexicon.figure(Figure::number, word))
        return Leading{*named, {}};
    return leadingNumber(word);
}

} // namespace

std::optional<Taken<std::int64_t>> sizeAt(std::span<const std::string> words, const Lexicon& lexicon)
{
    if (words.empty())
        return std::nullopt;
    // "Half a gigabyte"
    const auto named = figureAt(Figure::number, words, lexicon);
    const std::size_t before = named ? named->words : 1;
    const auto number = named ? std::optional(Leading{named->value, {}}) : numberBefore(words[0], lexicon);
    if (!number)
        return std::nullopt;
    const bool isJoined = !number->rest.empty();
    if (!isJoined && words.size() <= before)
        return std::nullopt;
    const auto unit = unitNamed(isJoined ? number->rest : words[before], lexicon);
    const double bytes = unit ? number->value * *unit : -1;
    if (bytes < 0 || bytes > static_cast<double>(kMostBytes))
        return std::nullopt;
    return Taken<std::int64_t>{static_cast<std::int64_t>(bytes), isJoined ? std::size_t{1} : before + 1};
}

std::optional<Taken<std::int64_t>> numberAt(std::span<const std::string> words, const Lexicon& lexicon)
{
    if (words.empty())
        return std::nullopt;
    if (const auto named = lexicon.figure(Figure::number, words[0]); named && *named >= 1)
        return Taken<std::int64_t>{static_cast<std::int64_t>(*named), 1};
    std::int64_t number = 0;
    const char* const last = words[0].data() + words[0].size();
    const auto [end, error] = std::from_chars(words[0].data(), last, number);
    return error == std::errc() && end == last && number >= 1 && number <= kMostListed
               ? std::optional(Taken<std::int64_t>{number, 1})
               : std::nullopt;
}

std::optional<Taken<double>> figureAt(Figure figure, std::span<const std::string> words,
                                      const Lexicon& lexicon)
{
    constexpr std::size_t kMostWords = 3;
    for (std::size_t count = std::min(kMostWords, words.size()); count > 0; --count) {
        std::string text = words[0];
        for (const std::string& word : words.subspan(1, count - 1))
            text += " " + word;
        if (const auto value = lexicon.figure(figure, text))
            return Taken<double>{*value, count};
    }
    return std::nullopt;
}

} // namespace orlen::AskReader
