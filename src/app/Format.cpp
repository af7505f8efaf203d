#include "app/Format.h"

#include "clean/Safety.h"
#include "platform/text/PathText.h"

#include <array>
#include <cmath>
#include <ctime>

namespace orlen::Format {

std::string grouped(std::int64_t number)
{
    std::string digits = std::to_string(number);
    const std::size_t sign = number < 0 ? 1 : 0;
    for (std::size_t at = digits.size(); at > sign + 3;) {
        at -= 3;
        digits.insert(at, 1, ',');
    }
    return digits;
}

std::string counted(std::int64_t count, std::string_view noun)
{
    if (count == 1)
        return "1 " + std::string(noun);
    const bool endsInY = noun.ends_with("y");
    const std::string plural =
        endsInY ? std::string(noun.substr(0, noun.size() - 1)) + "ies" : std::string(noun) + "s";
    return grouped(count) + ' ' + plural;
}

std::string duration(double seconds)
{
    const auto tenths = static_cast<std::int64_t>(std::llround(seconds * 10));
    if (tenths == 0)
        return std::to_string(std::llround(seconds * 1'000)) + " ms";
    if (tenths < 100)
        return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10) + " s";
    const auto whole = static_cast<std::int64_t>(std::llround(seconds));
    if (whole < 60)
        return std::to_string(whole) + " s";
    return std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
}

std::string localTime(TimePoint time)
{
    const std::time_t moment = std::chrono::system_clock::to_time_t(time);
    std::tm parts{};
    std::array<char, 32> text{};
    if (::localtime_r(&moment, &parts) == nullptr)
        return isoText(time);
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts);
    return {text.data(), length};
}

std::string shownPath(std::string_view path)
{
    const std::string& home = Safety::home();
    if (home.size() > 1 && PathText::isAtOrBelow(path, home))
        return PathText::forDisplay("~" + std::string(path.substr(home.size())));
    return PathText::forDisplay(path);
}

std::string quoted(std::string_view path)
{
    return "\"" + PathText::forDisplay(path) + "\"";
}

} // namespace orlen::Format
