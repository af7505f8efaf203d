#include "scan/Cand.h"

namespace orlen {

FileEntry toEntry(const Cand& cand)
{
    FileEntry entry;
    entry.path = cand.path;
    entry.size = cand.size;
    entry.modified = cand.modified;
    entry.stamp = cand.stamp;
    return entry;
}

std::optional<KeptFile> toKept(const Cand& cand)
{
    if (!cand.stamp)
        return std::nullopt;
    return KeptFile{cand.path, *cand.stamp};
}

} // namespace orlen
