#include "window/findings/EntryOrder.h"

#include "platform/text/PathText.h"
#include "window/lists/DisplayText.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

namespace orlen::EntryOrder {

namespace {

constexpr std::array<std::string_view, 5> kRawKeys{"size", "name", "date", "folder",
                                                   "rating"}; // in the order of the enum

bool hasAll(const Words& words, const QStringList& wanted)
{
    return std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
        return words.name.contains(word) || words.folder.contains(word);
    });
}

template <typename Before>
void sort(std::vector<int>& rows, Direction direction, Before before)
{
    if (direction == Direction::usual)
        std::stable_sort(rows.begin(), rows.end(), before);
    else
        std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) { return before(b, a); });
}

void sortByDate(std::vector<int>& rows, std::span<const FileEntry> entries, Direction direction)
{
    const auto date = [&](int row) {
        const FileEntry& entry = entries[static_cast<std::size_t>(row)];
        return entry.lastOpened ? entry.lastOpened : entry.modified;
    };
    const auto undated =
        std::stable_partition(rows.begin(), rows.end(), [&](int row) { return date(row).has_value(); });
    std::vector<int> dated(rows.begin(), undated);
    sort(dated, direction, [&](int a, int b) { return date(a) > date(b); });
    std::copy(dated.begin(), dated.end(), rows.begin());
}

} // namespace

std::string_view rawValue(Key key)
{
    return kRawKeys.at(static_cast<std::size_t>(key));
}

std::optional<Key> keyFrom(std::string_view raw)
{
    const auto* const found = std::ranges::find(kRawKeys, raw);
    if (found == kRawKeys.end())
        return std::nullopt;
    return static_cast<Key>(found - kRawKeys.begin());
}

std::vector<Words> wordsOf(std::span<const FileEntry> entries)
{
    std::vector<Words> words;
    words.reserve(entries.size());
    // Many entries share a folder; turning each path into a text takes most of the time.
    std::unordered_map<std::string_view, QString> folders;
    for (const FileEntry& entry : entries) {
        const auto [folder, isNew] = folders.try_emplace(PathText::parent(entry.path));
        if (isNew)
            folder->second = DisplayText::folderOf(entry.path).toCaseFolded();
        words.push_back({DisplayText::nameOf(entry.path).toCaseFolded(), folder->second});
    }
    return words;
}

bool needsWords(const Wish& wish)
{
    return wish.key == Key::name || wish.key == Key::folder || !wish.filter.isEmpty();
}

bool matches(const QString& text, const QString& filter)
{
    return hasAll({text.toCaseFolded(), {}}, filter.toCaseFolded().split(u' ', Qt::SkipEmptyParts));
}

Wish pressed(Wish wish, Key key)
{
    const bool isTurned = wish.key == key && wish.direction == Direction::usual;
    wish.key = key;
    wish.direction = isTurned ? Direction::reversed : Direction::usual;
    return wish;
}

std::vector<int> rows(std::span<const FileEntry> entries, const std::vector<Words>& words, const Wish& wish,
                      Rating rating)
{
    const QStringList wanted = wish.filter.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
    std::vector<int> rows;
    rows.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (wanted.isEmpty() || hasAll(words[i], wanted))
            rows.push_back(static_cast<int>(i));
    }
    const auto entry = [&](int row) -> const FileEntry& { return entries[static_cast<std::size_t>(row)]; };
    const auto name = [&](int row) -> const QString& { return words[static_cast<std::size_t>(row)].name; };
    switch (wish.key) {
    case Key::size:
        sort(rows, wish.direction, [&](int a, int b) { return entry(a).size > entry(b).size; });
        break;
    case Key::name:
        sort(rows, wish.direction, [&](int a, int b) { return name(a) < name(b); });
        break;
    case Key::date:
        sortByDate(rows, entries, wish.direction);
        break;
    case Key::folder: {
        const auto folder = [&](int row) -> const QString& {
            return words[static_cast<std::size_t>(row)].folder;
        };
        sort(rows, wish.direction, [&](int a, int b) { return folder(a) < folder(b); });
        break;
    }
    case Key::rating: {
        const auto rated = [&](int row) { return entry(row).rating.value_or(rating); };
        sort(rows, wish.direction, [&](int a, int b) { return rated(a) < rated(b); });
        break;
    }
    }
    return rows;
}

std::vector<int> inSets(std::vector<int> rows, std::span<const FileEntry> entries)
{
    std::unordered_map<std::string_view, std::size_t> places;
    std::vector<std::pair<std::size_t, int>> placed;
    placed.reserve(rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const auto& kept = entries[static_cast<std::size_t>(rows[at])].kept;
        placed.emplace_back(kept ? places.try_emplace(kept->path, at).first->second : at, rows[at]);
    }
    if (places.empty())
        return rows;
    std::ranges::stable_sort(placed, {}, &std::pair<std::size_t, int>::first);
    std::ranges::transform(placed, rows.begin(), &std::pair<std::size_t, int>::second);
    return rows;
}

} // namespace orlen::EntryOrder
