#include "model/FileEntry.h"

namespace orlen {

void addNote(FileEntry& entry, std::string_view note)
{
    if (entry.note)
        entry.note->append(" · ").append(note);
    else
        entry.note = note;
}

} // namespace orlen
