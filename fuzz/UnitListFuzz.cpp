#include "tools/startup/UnitList.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What is read as a list holds the units that the library's own reader finds in the document, and no others.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using Json = nlohmann::json;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto units = orlen::UnitList::parsed(text);
    if (!units)
        return 0;
    const Json document = Json::parse(text.begin(), text.end(), nullptr, false);
    if (!document.is_array())
        std::abort();
    std::vector<orlen::ListedUnit> expected;
    for (const Json& element : document) {
        const Json name = element.is_object() ? element.value("unit_file", Json()) : Json();
        const Json state = element.is_object() ? element.value("state", Json()) : Json();
        const bool isUnit = name.is_string() && state.is_string() && name != "" && state != "";
        if (isUnit)
            expected.push_back({name.get<std::string>(), state.get<std::string>()});
    }
    if (expected != *units)
        std::abort();
    return 0;
}
