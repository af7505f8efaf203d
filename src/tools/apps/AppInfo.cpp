#include "tools/apps/AppInfo.h"

#include "platform/values/CheckedSum.h"

namespace orlen {

std::optional<std::int64_t> AppInfo::total() const
{
    return size ? std::optional(checkedAdd(*size, dataSize.value_or(0))) : std::nullopt;
}

} // namespace orlen
