#include "platform/text/PathText.h"
#include "tools/startup/UnitFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// A program is text that a path can hold, and an empty file has none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const orlen::UnitFile unit = orlen::UnitFile::parsed(text, "/home/user");
    const bool isPathText =
        orlen::PathText::isValidUtf8(unit.program) && unit.program.find('\0') == std::string::npos;
    if (!isPathText || (size == 0 && (unit.isInstallable || !unit.program.empty())))
        std::abort();
    return 0;
}
