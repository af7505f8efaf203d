#include "scan/Cand.h"

#include "scan/FS.h"
#include "scan/tree/TreeSum.h"

namespace orlen {

FileEntry toEntry(const Cand& cand, std::string_view note)
{
    FileEntry entry;
    entry.path = cand.path;
    entry.modified = cand.modified;
    entry.stamp = cand.stamp;
    if (!note.empty())
        addNote(entry, note);
    FS::setSize(entry, {cand.size, cand.hasOtherNames ? 0 : cand.size});
    return entry;
}

FileEntry toEntryByContent(const Cand& cand, std::string_view note)
{
    FileEntry entry = toEntry(cand, note);
    entry.isTickedAlone = cand.isInRepository;
    if (cand.isInRepository)
        addNote(entry, "Part of a repository");
    return entry;
}

std::optional<KeptFile> toKept(const Cand& cand)
{
    if (!cand.stamp)
        return std::nullopt;
    return KeptFile{cand.path, *cand.stamp};
}

} // namespace orlen
