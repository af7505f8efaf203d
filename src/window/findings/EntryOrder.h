#pragma once

#include "model/FileEntry.h"

#include <QString>

#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// Filters and sorts entries. Pure; any thread.
namespace orlen::EntryOrder {

enum class Key { size, name, date, folder, rating };
/// As it is remembered: "size", "name" and so on.
[[nodiscard]] std::string_view rawValue(Key key);
[[nodiscard]] std::optional<Key> keyFrom(std::string_view raw);
enum class Direction { usual, reversed };

/// An entry's name and folder, normalised for comparing and searching.
struct Words {
    QString name;
    QString folder;
};
[[nodiscard]] std::vector<Words> wordsOf(std::span<const FileEntry> entries);

struct Wish {
    Key key = Key::size;
    Direction direction = Direction::usual;
    QString filter; ///< each word must appear in the name or the folder; case is ignored
};

/// Whether the words are needed to follow the wish.
[[nodiscard]] bool needsWords(const Wish& wish);

/// Indices of the matching entries: largest first, by name, latest first with undated ones last, by folder,
/// or the safest first; `rating` is that of entries without their own. The sort is stable.
[[nodiscard]] std::vector<int> rows(std::span<const FileEntry> entries, const std::vector<Words>& words,
                                    const Wish& wish, Rating rating = Rating::review);
/// Whether a text has all words of a filter.
[[nodiscard]] bool matches(const QString& text, const QString& filter);
/// The order after a press on a key: by it, or the other way round if it is by that already.
[[nodiscard]] Wish pressed(Wish wish, Key key);

/// The same rows with those of a set together, where the first of them stands.
[[nodiscard]] std::vector<int> inSets(std::vector<int> rows, std::span<const FileEntry> entries);

} // namespace orlen::EntryOrder
