#include "model/FileEntry.h"

#include <utility>

namespace orlen {

void addNote(FileEntry& entry, Message note)
{
    if (!note.empty())
        entry.notes.push_back(std::move(note));
}

void addNoteBefore(FileEntry& entry, Message note)
{
    if (!note.empty())
        entry.notes.insert(entry.notes.begin(), std::move(note));
}

Message noteOf(const FileEntry& entry)
{
    return Message::joined(entry.notes, Several::Joint::facts);
}

} // namespace orlen
