#include "scan/locations/KeptLanguages.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen::KeptLanguages {

std::string languageOf(std::string_view code)
{
    return PathText::asciiLower(code.substr(0, code.find_first_of("-_@")));
}

bool contains(std::string_view code)
{
    const std::string language = languageOf(code);
    const auto& set = Places::current().languages;
    return language == "en" || language == "base" ||
           std::ranges::any_of(set, [&](const std::string& tag) { return languageOf(tag) == language; });
}

} // namespace orlen::KeptLanguages
