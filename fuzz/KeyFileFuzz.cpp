#include "Require.h"
#include "platform/text/KeyFile.h"

#include <cstdint>
#include <string>

/// The raw lines make up the text, and an entry is a piece of its line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using orlen::KeyFile;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const KeyFile::Spaces spaces : {KeyFile::Spaces::trimmed, KeyFile::Spaces::kept}) {
        std::string joined;
        KeyFile file(text, spaces);
        while (const auto line = file.next()) {
            joined += line->raw;
            require(!line->isHeading || line->key.empty());
            require(line->raw.find(line->key) != std::string_view::npos);
            require(line->raw.find(line->value) != std::string_view::npos);
            const std::string entry = std::string(line->key).append("=").append(line->value);
            require(spaces == KeyFile::Spaces::trimmed || line->key.empty() ||
                    line->raw.find(entry) != std::string_view::npos);
        }
        require(joined == text);
    }
    return 0;
}
