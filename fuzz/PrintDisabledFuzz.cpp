#include "tools/startup/PrintDisabled.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// A label is a piece of one line, and never more than a line has.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::size_t total = 0;
    for (const std::string& label : orlen::PrintDisabled::labels(text)) {
        total += label.size();
        if (label.find('\n') != std::string::npos || label.starts_with('"') || total > size)
            std::abort();
    }
    return 0;
}
