#include "platform/desktop/ActivityUsage.h"

#include <cstdint>
#include <string>

/// Any bytes that begin like a database are read without harm.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string bytes("SQLite format 3\0", 16);
    bytes.append(reinterpret_cast<const char*>(data), size);
    (void)orlen::ActivityUsage::parse(std::move(bytes)).lastUse("org.example.App.desktop");
    return 0;
}
