#include "clean/Cleaner.h"

#include "clean/FailureReasons.h"
#include "clean/Journal.h"
#include "clean/Reserve.h"
#include "clean/Safety.h"
#include "clean/trash/RealPath.h"
#include "clean/trash/Trash.h"
#include "model/PathCover.h"
#include "model/PathSelection.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <map>
#include <optional>
#include <variant>

namespace orlen::Cleaner {

namespace {

using Journals::State;

/// Whether the path, or where it really leads, is excluded.
bool isExcluded(const std::string& path, const Exclusions& exclusions)
{
    if (exclusions.isEmpty())
        return false;
    if (exclusions.excludes(path) != nullptr)
        return true;
    const auto real = RealPath::of(path);
    return real.ok() && exclusions.excludes(Places::current().normalized(real.value().text())) != nullptr;
}

/// Why the path must stay whatever lies there.
std::optional<FailureReason> objection(const std::string& path, const Exclusions& exclusions)
{
    // The history is text: an item with a name it cannot hold could never be put back.
    if (!PathText::isValidUtf8(path) || Safety::isProtected(path))
        return FailureReason::isProtected;
    return isExcluded(path, exclusions) ? std::optional(FailureReason::excluded) : std::nullopt;
}

/// Moves entries one by one and keeps track of what its own moves have changed.
class Mover {
public:
    /// The entries outlive this.
    Mover(const std::vector<FileEntry>& entries, const Exclusions& exclusions,
          const std::vector<CopySet>& sets)
        : m_exclusions(exclusions), m_staying(CopySets::staying(sets, entries))
    {
        for (const FileEntry& entry : entries) {
            if (!m_staying.contains(entry.path))
                m_going.add(entry.path);
        }
    }

    [[nodiscard]] std::variant<TrashedItem, FailureReason> move(const FileEntry& entry)
    {
        if (const auto reason = objection(entry.path, m_exclusions))
            return *reason;
        if (m_staying.contains(entry.path))
            return FailureReason::keptOfSet;
        if (entry.kept && !stays(*entry.kept))
            return FailureReason::changed;
        const auto stamp = entry.stamp ? std::optional(today(*entry.stamp)) : std::nullopt;
        auto trashed = Trash::moveIn(entry.path, entry.size, stamp);
        if (!trashed.ok())
            return FailureReasons::ofCleaning(trashed.error());
        noteMove(entry, trashed.value());
        return TrashedItem{entry.path, std::move(trashed).value(), entry.size, false};
    }

private:
    /// Whether the file to be kept exists, is unchanged, and is not about to go itself.
    [[nodiscard]] bool stays(const KeptFile& kept) const
    {
        const auto status = statusOf(kept.path);
        return status.ok() && FileStamp::of(status.value()) == today(kept.stamp) &&
               m_going.of(kept.path).empty();
    }

    /// Moving one name of a file changes the time of change for all its names.
    [[nodiscard]] FileStamp today(const FileStamp& shown) const
    {
        const auto moved = m_moved.find(shown.identity);
        return moved != m_moved.end() && moved->second.before == shown ? moved->second.after : shown;
    }

    void noteMove(const FileEntry& entry, const std::string& trashed)
    {
        const auto status = statusOf(trashed);
        if (entry.stamp && status.ok() && status.value().links > 1)
            m_moved[entry.stamp->identity] = {*entry.stamp, FileStamp::of(status.value())};
    }

    struct Change {
        FileStamp before;
        FileStamp after;
    };
    const Exclusions& m_exclusions;
    const std::set<std::string> m_staying;
    PathCover m_going;
    std::map<FileIdentity, Change> m_moved;
};

/// What the clean-up is going to move. An entry without a stamp gets the current one, so that what moves
/// matches the journal.
Journal planned(std::vector<FileEntry>& entries, const std::string& title, const Exclusions& exclusions)
{
    Journal journal{Uuid::random(), std::chrono::system_clock::now(), title, {}};
    for (FileEntry& entry : entries) {
        if (objection(entry.path, exclusions))
            continue;
        const auto status = statusOf(entry.path);
        if (!status.ok())
            continue;
        if (!entry.stamp)
            entry.stamp = FileStamp::of(status.value());
        journal.items.push_back(
            {entry.path, entry.size, status.value().identity.device, status.value().lasting()});
    }
    return journal;
}

Cleaned refused(Cleaned cleaned, const std::vector<FileEntry>& entries, FailureReason reason)
{
    for (const FileEntry& entry : entries)
        cleaned.failures.push_back({entry.path, reason});
    cleaned.record.failed = static_cast<int>(entries.size());
    cleaned.record.date = std::chrono::system_clock::now();
    cleaned.refusal = reason;
    return cleaned;
}

using Identities = std::map<std::string, LastingIdentity>;

/// Original paths and identities of the items the clean-up moved, if recorded.
Identities notedItems(const Uuid& record)
{
    Identities noted;
    if (const auto cleaned = Journals::read(record, State::cleaned)) {
        for (const Journal::Item& item : cleaned->items)
            noted.emplace(item.path, item.identity);
    }
    return noted;
}

/// The items of the record to put back, in its order; valid as long as the record's.
std::vector<TrashedItem*> missing(CleanRecord& record, const Wanted& wanted)
{
    std::vector<TrashedItem*> items;
    for (TrashedItem& item : record.items) {
        if (!item.restored && (!wanted || wanted->contains(item.original)))
            items.push_back(&item);
    }
    return items;
}

/// What the restore is going to move back.
Journal plannedRestore(const CleanRecord& record, const std::vector<TrashedItem*>& items,
                       const Identities& noted)
{
    Journal journal{record.id, std::chrono::system_clock::now(), record.title, {}};
    for (const TrashedItem* item : items) {
        if (const auto found = noted.find(item->original); found != noted.end())
            journal.items.push_back({item->original, item->size, 0, found->second});
        else if (const auto identity = Trash::identityOf(item->trashed))
            journal.items.push_back({item->original, item->size, 0, *identity});
    }
    return journal;
}

std::optional<FailureReason> putBack(const TrashedItem& item, const Identities& noted, TimePoint cleaned)
{
    if (item.trashed.empty())
        return FailureReason::missing;
    if (Safety::isProtected(item.original))
        return FailureReason::isProtected;
    Trash::Recognition recognition{std::nullopt, cleaned};
    if (const auto found = noted.find(item.original); found != noted.end())
        recognition.identity = found->second;
    const auto moved = Trash::moveBack(item.trashed, item.original, recognition);
    return moved.ok() ? std::nullopt : std::optional(FailureReasons::ofRestoring(moved.error()));
}

Restored refusedRestore(const std::vector<TrashedItem*>& items, FailureReason reason)
{
    Restored result;
    for (const TrashedItem* item : items)
        result.failures.push_back({item->original, reason});
    result.refusal = reason;
    return result;
}

Restored putBack(const std::vector<TrashedItem*>& items, const Identities& noted, TimePoint cleaned,
                 const std::stop_token& stop, const Progress& progress)
{
    Restored result;
    const int total = static_cast<int>(items.size());
    for (int index = 0; index < total && !stop.stop_requested(); ++index) {
        TrashedItem& item = *items[static_cast<std::size_t>(index)];
        if (progress)
            progress(index, total, std::string(PathText::lastComponent(item.original)));
        const auto failure = putBack(item, noted, cleaned);
        item.restored = !failure;
        if (failure)
            result.failures.push_back({item.original, *failure});
        else
            ++result.restored;
    }
    if (progress)
        progress(total, total, "");
    return result;
}

} // namespace

Cleaned run(std::vector<FileEntry> entries, const std::string& title, const Progress& progress,
            const std::stop_token& stop, const Exclusions& exclusions, const std::vector<CopySet>& sets)
{
    Safety::refresh();
    Reserve::refill();
    std::vector<FileEntry> kept = PathSelection::outermost(std::move(entries));
    CopySets::tie(kept, sets);
    const Journal journal = planned(kept, title, exclusions);
    Cleaned cleaned;
    cleaned.record.id = journal.id;
    cleaned.record.title = title;
    const int total = static_cast<int>(kept.size());
    if (!journal.items.empty()) {
        if (const auto written = Journals::write(journal, State::cleaning); !written.ok()) {
            progress(total, total, "");
            return refused(std::move(cleaned), kept, FailureReasons::ofCleaning(written.error()));
        }
    }
    Mover mover(kept, exclusions, sets);
    for (int index = 0; index < total && !stop.stop_requested(); ++index) {
        const FileEntry& entry = kept[static_cast<std::size_t>(index)];
        progress(index, total, std::string(PathText::lastComponent(entry.path)));
        auto outcome = mover.move(entry);
        if (auto* item = std::get_if<TrashedItem>(&outcome))
            cleaned.record.items.push_back(std::move(*item));
        else
            cleaned.failures.push_back({entry.path, std::get<FailureReason>(outcome)});
    }
    progress(total, total, "");
    cleaned.record.failed = static_cast<int>(cleaned.failures.size());
    cleaned.record.date = std::chrono::system_clock::now();
    return cleaned;
}

Restored restore(CleanRecord record, const std::stop_token& stop, const Progress& progress,
                 const Wanted& wanted)
{
    Safety::refresh();
    const std::vector<TrashedItem*> items = missing(record, wanted);
    const Identities noted = notedItems(record.id);
    const Journal journal = plannedRestore(record, items, noted);
    const auto written = journal.items.empty() ? Result<void>() : Journals::write(journal, State::restoring);
    Restored result = written.ok() ? putBack(items, noted, record.date, stop, progress)
                                   : refusedRestore(items, FailureReasons::ofCleaning(written.error()));
    result.failed = static_cast<int>(result.failures.size());
    result.record = std::move(record);
    return result;
}

} // namespace orlen::Cleaner
