#include "clean/trash/TrashInfo.h"

#include "platform/text/KeyFile.h"
#include "platform/text/PercentCoding.h"

#include <array>
#include <charconv>
#include <ctime>

namespace orlen {

namespace {

constexpr std::string_view kGroup = "Trash Info";

/// The number in `[at, at + length)`; nothing if any character is not a digit.
std::optional<int> number(std::string_view text, std::size_t at, std::size_t length, int base)
{
    int value = 0;
    const char* end = text.data() + at + length;
    const auto [stop, error] = std::from_chars(text.data() + at, end, value, base);
    if (error != std::errc() || stop != end || text[at] == '-')
        return std::nullopt;
    return value;
}

std::string localText(TimePoint time)
{
    const std::time_t seconds =
        std::chrono::system_clock::to_time_t(std::chrono::floor<std::chrono::seconds>(time));
    std::tm local{};
    if (::localtime_r(&seconds, &local) == nullptr)
        return {};
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &local);
    return {text.data(), length};
}

/// Parses what `localText` writes; ignores what other programs append (fractions, a zone).
std::optional<TimePoint> timeFromLocal(std::string_view text)
{
    if (text.size() < 19 || text[4] != '-' || text[7] != '-' || text[10] != 'T' || text[13] != ':' ||
        text[16] != ':')
        return std::nullopt;
    const auto year = number(text, 0, 4, 10);
    const auto month = number(text, 5, 2, 10);
    const auto day = number(text, 8, 2, 10);
    const auto hour = number(text, 11, 2, 10);
    const auto minute = number(text, 14, 2, 10);
    const auto second = number(text, 17, 2, 10);
    // Times further apart would overflow 64 bits of nanoseconds.
    if (!year || !month || !day || !hour || !minute || !second || *year < 1900 || *year > 2190)
        return std::nullopt;
    if (*month < 1 || *month > 12 || *day < 1 || *day > 31 || *hour > 23 || *minute > 59 || *second > 59)
        return std::nullopt;
    std::tm local{};
    local.tm_year = *year - 1900;
    local.tm_mon = *month - 1;
    local.tm_mday = *day;
    local.tm_hour = *hour;
    local.tm_min = *minute;
    local.tm_sec = *second;
    local.tm_isdst = -1;
    return std::chrono::system_clock::from_time_t(std::mktime(&local));
}

} // namespace

std::string TrashInfo::text(std::string_view path, TimePoint deleted)
{
    std::string text = "[" + std::string(kGroup) + "]";
    text += "\nPath=" + PercentCoding::encoded(path);
    text += "\nDeletionDate=" + localText(deleted) + "\n";
    return text;
}

std::optional<TrashInfo> TrashInfo::parse(std::string_view text)
{
    std::optional<std::string_view> path;
    std::optional<std::string_view> date;
    KeyFile file(text, KeyFile::Spaces::kept);
    while (const auto line = file.next()) {
        if (line->group != kGroup)
            continue;
        if (line->key == "Path" && !path)
            path = line->value;
        if (line->key == "DeletionDate" && !date)
            date = line->value;
    }
    auto decoded = PercentCoding::decoded(path.value_or(""));
    // The kernel would stop at the first NUL.
    if (!decoded || decoded->empty() || decoded->find('\0') != std::string::npos)
        return std::nullopt;
    return TrashInfo{*std::move(decoded), date ? timeFromLocal(*date) : std::nullopt};
}

} // namespace orlen
