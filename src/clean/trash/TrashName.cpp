#include "clean/trash/TrashName.h"

#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen::TrashName {

namespace {

constexpr std::string_view kInfoSuffix = ".trashinfo";
/// Longest name on common file systems, in bytes.
constexpr std::size_t kLongestName = 255;

bool isInsideCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string_view cutBetweenCharacters(std::string_view text, std::size_t limit)
{
    if (text.size() <= limit)
        return text;
    // A character has at most three continuation bytes; more are not text at all.
    std::size_t cut = limit;
    while (limit - cut < 3 && isInsideCharacter(text[cut]))
        --cut;
    return text.substr(0, isInsideCharacter(text[cut]) ? limit : cut);
}

std::string shortened(std::string_view name, std::size_t limit)
{
    if (name.size() <= limit)
        return std::string(name);
    const std::size_t extension = PathText::extension(name).size();
    const std::size_t dotted = extension == 0 ? 0 : extension + 1;
    // An "extension" longer than half the name is a sentence with a dot in it.
    if (dotted > limit / 2)
        return std::string(cutBetweenCharacters(name, limit));
    const std::string_view ending = name.substr(name.size() - dotted);
    return std::string(cutBetweenCharacters(name.substr(0, name.size() - dotted), limit - dotted))
        .append(ending);
}

} // namespace

std::string infoName(std::string_view name)
{
    return std::string(name).append(kInfoSuffix);
}

std::string candidate(std::string_view name, int attempt)
{
    const std::string counter = attempt > 1 ? "." + std::to_string(attempt) : std::string();
    std::string chosen = shortened(name, kLongestName - kInfoSuffix.size() - counter.size());
    return chosen.insert(std::min(chosen.find('.'), chosen.size()), counter);
}

} // namespace orlen::TrashName
