#pragma once

#include "model/FileEntry.h"
#include "window/findings/FolderLookup.h"
#include "window/lists/DisplayText.h"
#include "window/lists/FileSymbol.h"
#include "window/preview/Thumbnails.h"

#include <QVariant>

namespace orlen::EntryCell {

/// What the roles that all lists of entries have show of an entry; nothing for a role of one list alone. Main
/// thread.
template <typename Role>
[[nodiscard]] QVariant value(const FileEntry& entry, Role role, FolderLookup& folders)
{
    if (role == Role::name)
        return DisplayText::nameOf(entry.path);
    if (role == Role::folder)
        return DisplayText::folderOf(entry.path);
    if (role == Role::size)
        return DisplayText::size(entry.size);
    if (role == Role::date)
        return DisplayText::dateOf(entry);
    if (role == Role::note)
        return DisplayText::text(noteOf(entry));
    if (role == Role::symbol)
        return folders.isFolder(entry.path) ? FileSymbol::ofFolder() : FileSymbol::ofName(entry.path);
    if (role == Role::thumbnail)
        return folders.isFolder(entry.path) ? QString() : Thumbnails::source(entry.path);
    return {};
}

} // namespace orlen::EntryCell
