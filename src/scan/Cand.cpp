#include "scan/Cand.h"

#include "scan/FS.h"
#include "scan/ScanTexts.h"
#include "scan/tree/TreeSum.h"

#include <utility>

namespace orlen {

FileEntry toEntry(const Cand& cand, Message note)
{
    FileEntry entry;
    entry.path = cand.path;
    entry.modified = cand.modified;
    entry.stamp = cand.stamp;
    addNote(entry, std::move(note));
    FS::setSize(entry, {cand.size, cand.hasOtherNames ? 0 : cand.size});
    return entry;
}

FileEntry toEntryByContent(const Cand& cand, Message note)
{
    FileEntry entry = toEntry(cand, std::move(note));
    entry.isTickedAlone = cand.isInRepository;
    if (cand.isInRepository)
        addNote(entry, ScanTexts::kInRepository);
    return entry;
}

std::optional<KeptFile> toKept(const Cand& cand)
{
    if (!cand.stamp)
        return std::nullopt;
    return KeptFile{cand.path, *cand.stamp};
}

} // namespace orlen
