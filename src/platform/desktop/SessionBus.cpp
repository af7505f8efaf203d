#include "platform/desktop/SessionBus.h"

#include "platform/files/FileStatus.h"

#include <cstdlib>
#include <string>

namespace orlen::SessionBus {

namespace {

std::string valueOf(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

/// Where the bus libraries look before they start a bus.
bool hasUsualSocket()
{
    const std::string folder = valueOf("XDG_RUNTIME_DIR");
    return folder.starts_with('/') && exists(folder + "/bus");
}

} // namespace

void startNone()
{
    const std::string address = valueOf(kVariable);
    const bool isLookedFor = address.empty() && !hasUsualSocket();
    if (isLookedFor || address.starts_with("autolaunch:"))
        ::setenv(kVariable, kNowhere.data(), 1);
}

bool isMissing()
{
    return valueOf(kVariable) == kNowhere;
}

} // namespace orlen::SessionBus
