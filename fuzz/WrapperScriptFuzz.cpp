#include "tools/apps/WrapperScript.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// A target is an absolute path of bounded length, or nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string target = orlen::WrapperScript::targetIn(text, "/home/user");
    const bool isPath =
        target.starts_with('/') && target.find('\0') == std::string::npos && target.size() < 8192;
    if (!target.empty() && !isPath)
        std::abort();
    return 0;
}
