#include "clean/History.h"

#include "clean/Journal.h"
#include "clean/Persist.h"
#include "clean/Recovery.h"
#include "platform/files/OwnFile.h"

#include <algorithm>
#include <chrono>

namespace orlen::History {

namespace {

using Journals::State;

/// For a disk that was unplugged after a clean-up was killed.
constexpr std::chrono::hours kPatience{24 * 90};

auto recordOf(std::vector<CleanRecord>& history, const Uuid& id)
{
    return std::ranges::find(history, id, &CleanRecord::id);
}

bool isWhollyRestored(const CleanRecord& record)
{
    return std::ranges::all_of(record.items, &TrashedItem::restored);
}

/// Where a record belongs in the list, usually the front.
auto placeOf(std::vector<CleanRecord>& history, TimePoint date)
{
    return std::ranges::find_if(history, [&](const CleanRecord& other) { return other.date <= date; });
}

/// The record plus those of the found items it does not have yet.
CleanRecord joined(CleanRecord record, CleanRecord found)
{
    for (TrashedItem& item : found.items) {
        if (std::ranges::find(record.items, item.original, &TrashedItem::original) == record.items.end())
            record.items.push_back(std::move(item));
    }
    return record;
}

bool recoverClean(std::vector<CleanRecord>& history, const Uuid& id)
{
    const auto journal = Journals::read(id, State::cleaning);
    // A journal that cannot be read now will still be there at the next start.
    if (!journal)
        return false;
    CleanRecord record = Recovery::recordOf(*journal);
    const auto known = recordOf(history, id);
    if (known != history.end())
        record = joined(*known, std::move(record));
    // The rest is found once its disk is back; what stays away this long was thrown away.
    const bool isLeftForLater = Recovery::isOutOfReach(*journal, record) &&
                                std::chrono::system_clock::now() - journal->started < kPatience;
    if (record.items.empty()) {
        if (!isLeftForLater)
            Journals::remove(id, State::cleaning);
        return false;
    }
    const bool hasChanged = known == history.end() || *known != record;
    if (known != history.end())
        *known = std::move(record);
    else
        history.insert(placeOf(history, record.date), std::move(record));
    const bool isSaved = !hasChanged || Persist::saveHistory(history).ok();
    if (isSaved && !isLeftForLater)
        Journals::settle(id);
    return hasChanged;
}

bool recoverRestore(std::vector<CleanRecord>& history, const Uuid& id)
{
    const auto journal = Journals::read(id, State::restoring);
    if (!journal)
        return false;
    const auto found = recordOf(history, id);
    if (found == history.end()) {
        Journals::remove(id, State::restoring);
        return false;
    }
    CleanRecord record = *found;
    Recovery::markRestored(record, *journal);
    const bool hasChanged = record != *found;
    return update(history, record).ok() && hasChanged;
}

} // namespace

Result<void> add(std::vector<CleanRecord>& history, const CleanRecord& record)
{
    if (record.items.empty()) {
        Journals::remove(record.id, State::cleaning);
        return {};
    }
    history.insert(history.begin(), record);
    auto saved = Persist::saveHistory(history);
    if (saved.ok())
        Journals::settle(record.id);
    return saved;
}

Result<void> update(std::vector<CleanRecord>& history, const CleanRecord& record)
{
    if (const auto kept = recordOf(history, record.id); kept != history.end())
        *kept = record;
    auto saved = Persist::saveHistory(history);
    if (!saved.ok())
        return saved;
    Journals::remove(record.id, State::restoring);
    if (isWhollyRestored(record))
        Journals::remove(record.id, State::cleaned);
    return saved;
}

bool isUnfinished()
{
    return !Journals::all(State::cleaning).empty() || !Journals::all(State::restoring).empty();
}

bool recover(std::vector<CleanRecord>& history)
{
    // Nothing is done in somebody else's home folder.
    if (!Persist::makeDir().ok())
        return false;
    bool hasChanged = false;
    for (const Uuid& id : Journals::all(State::cleaning))
        hasChanged = recoverClean(history, id) || hasChanged;
    for (const Uuid& id : Journals::all(State::restoring))
        hasChanged = recoverRestore(history, id) || hasChanged;
    OwnFile::removeUnfinished(Persist::dir());
    Journals::removeUnfinished();
    return hasChanged;
}

} // namespace orlen::History
