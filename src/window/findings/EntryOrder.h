#pragma once

#include "model/FileEntry.h"

#include <QString>

#include <span>
#include <vector>

/// Which entries of a list are shown, and in which order. Pure; any thread.
namespace orlen::EntryOrder {

enum class Key { size, name, date };
enum class Direction { usual, reversed };

/// Of each entry, name and folder in the form in which they are compared and searched.
struct Words {
    QString name;
    QString folder;
};
[[nodiscard]] std::vector<Words> wordsOf(std::span<const FileEntry> entries);

struct Wish {
    Key key = Key::size;
    Direction direction = Direction::usual;
    QString filter; ///< every word of it must stand in the name or the folder; letters' case is ignored
};

/// Indices of the entries to show: largest first, by name, or latest first; those without a date last, and
/// equal ones as they were given.
[[nodiscard]] std::vector<int> rows(std::span<const FileEntry> entries, const std::vector<Words>& words,
                                    const Wish& wish);

} // namespace orlen::EntryOrder
