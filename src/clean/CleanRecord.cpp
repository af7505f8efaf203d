#include "clean/CleanRecord.h"

#include "platform/values/CheckedSum.h"

namespace orlen {

std::int64_t CleanRecord::freed() const
{
    std::int64_t bytes = 0;
    for (const TrashedItem& item : items)
        bytes = checkedAdd(bytes, item.size);
    return bytes;
}

} // namespace orlen
