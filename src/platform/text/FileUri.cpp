#include "platform/text/FileUri.h"

#include "platform/text/PercentCoding.h"

namespace orlen::FileUri {

std::optional<std::string> path(std::string_view address)
{
    for (const std::string_view start : {"file://", "file://localhost"}) {
        if (!address.starts_with(start) || !address.substr(start.size()).starts_with('/'))
            continue;
        auto path = PercentCoding::decoded(address.substr(start.size()));
        // Paths contain no NUL.
        if (path && path->find('\0') == std::string::npos)
            return path;
    }
    return std::nullopt;
}

} // namespace orlen::FileUri
