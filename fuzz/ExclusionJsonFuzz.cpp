#include "Require.h"
#include "clean/ExclusionJson.h"
#include "clean/Exclusions.h"

#include <nlohmann/json.hpp>

#include <cstdint>

/// Whatever a file holds, what is read of it can be asked, written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace orlen;
    const auto decoded = ExclusionJson::decode({reinterpret_cast<const char*>(data), size});
    require(decoded.records.size() <= ExclusionJson::kMost);
    std::string text = "[";
    for (const Exclusion& exclusion : decoded.records)
        text.append(text.size() > 1 ? "," : "").append(ExclusionJson::encode(exclusion).dump());
    const auto again = ExclusionJson::decode(text + ']');
    require(again.isWhole && again.records == decoded.records);

    const Exclusions exclusions(decoded.records, "/home");
    require(exclusions.lines() == decoded.records);
    for (const Exclusion& line : decoded.records) {
        const bool isPath = line.kind == Exclusion::Kind::path;
        require(exclusions.excludes(isPath ? line.text : "/home/" + line.text) != nullptr);
    }
    return 0;
}
