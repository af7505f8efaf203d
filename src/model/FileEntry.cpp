#include "model/FileEntry.h"

#include <utility>

namespace orlen {

void addNote(FileEntry& entry, std::string_view note)
{
    if (entry.note)
        entry.note->append(" · ").append(note);
    else
        entry.note = note;
}

void addNoteBefore(FileEntry& entry, std::string_view note)
{
    if (note.empty())
        return;
    std::optional<std::string> after = std::move(entry.note);
    entry.note = note;
    if (after)
        addNote(entry, *after);
}

} // namespace orlen
