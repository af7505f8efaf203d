#include "Require.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/text/PercentCoding.h"

#include <algorithm>
#include <cstdint>

namespace {

using namespace orlen;

void checkParts(std::string_view path)
{
    const std::string standard = PathText::standardized(path);
    require(standard.size() <= path.size() && PathText::standardized(standard) == standard);
    require(standard.starts_with('/') == path.starts_with('/'));
    for (const std::string_view part : PathText::components(standard))
        require(!part.empty() && part != "." && part != ".." && part.find('/') == std::string_view::npos);
    if (standard.starts_with('/') && standard != "/") {
        const std::string_view parent = PathText::parent(standard);
        require(PathText::join(parent, PathText::lastComponent(standard)) == standard);
        require(PathText::isAtOrBelow(standard, parent) && !PathText::isAtOrBelow(parent, standard));
    }
    const std::string_view name = PathText::lastComponent(path);
    const std::string stem(PathText::stem(path));
    const std::string extension(PathText::extension(path));
    require(name == stem || name == stem + '.' + extension);
}

void checkPlaces(std::string_view path)
{
    Places places;
    places.home = "/home/u";
    places.resolvedHome = "/data/homes/u";
    const std::string normal = places.normalized(path);
    require(places.normalized(normal) == normal);
    require(!PathText::isAtOrBelow(normal, places.resolvedHome));
    for (const std::string& expanded : places.expand(path))
        require(expanded.size() < path.size() + 64);
}

void checkCoding(std::string_view text)
{
    const std::string encoded = PercentCoding::encoded(text);
    require(PercentCoding::decoded(encoded) == text);
    const auto decoded = PercentCoding::decoded(text);
    require(!decoded || (decoded->size() <= text.size() &&
                         PercentCoding::decoded(PercentCoding::encoded(*decoded)) == decoded));
}

void checkDisplay(std::string_view text)
{
    const std::string shown = PathText::forDisplay(text);
    require(PathText::isValidUtf8(shown) && PathText::forDisplay(shown) == shown);
    require(shown.size() <= 3 * text.size());
    require(std::none_of(shown.begin(), shown.end(), [](char c) { return c >= 0 && c < ' '; }));
    require(!PathText::isValidUtf8(text) || shown.size() <= text.size());
}

} // namespace

/// Paths taken apart, brought into one form, encoded and shown.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    checkParts(text);
    checkPlaces(text);
    checkCoding(text);
    checkDisplay(text);
    return 0;
}
