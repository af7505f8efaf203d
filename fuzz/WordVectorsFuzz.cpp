#include "Require.h"
#include "platform/text/WordVectors.h"

#include <cstdint>
#include <string>

/// What is read has words that lie at a distance between 0 and 2 of each other, if at any.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using orlen::WordVectors;
    const std::string table(reinterpret_cast<const char*>(data), size);
    const auto vectors = WordVectors::read(table);
    if (!vectors)
        return 0;
    const std::string first = table.substr(24, table.find('\n', 24) - 24);
    require(vectors->contains(first) == (vectors->size() > 0));
    for (const std::string& word : {first, std::string("tax"), std::string()}) {
        const auto distance = vectors->distance(first, word);
        require(!distance || (*distance >= 0 && *distance <= 2));
    }
    return 0;
}
