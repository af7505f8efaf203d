#pragma once

#include "clean/CleanRecord.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Result.h"
#include "platform/values/Time.h"
#include "platform/values/Uuid.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// What a clean-up or restore is going to move, written down before the first item moves.
struct Journal {
    struct Item {
        std::string path; ///< where the item is, or was before the clean-up
        std::int64_t size = 0;
        std::uint64_t device = 0; ///< of the disk; valid until the next reboot
        LastingIdentity identity;
        friend bool operator==(const Item&, const Item&) = default;
    };

    Uuid id;           ///< the record's
    TimePoint started; ///< whole seconds
    std::string title; ///< the plan's
    std::vector<Item> items;

    friend bool operator==(const Journal&, const Journal&) = default;

    [[nodiscard]] std::string text() const;
    /// Nothing if the text is not a journal; items that cannot be parsed are left out. Pure.
    [[nodiscard]] static std::optional<Journal> parse(std::string_view text);
};

/// The journals on disk: one small file per clean-up in "journal" below the data folder. The file name tells
/// its state: a clean-up has begun; it is in the history, and the journal is kept to recognise its items in
/// the Trash; or a restore has begun. Any thread; blocks on the disk.
namespace Journals {

enum class State { cleaning, cleaned, restoring };

/// Synced before it returns. On failure there is no journal in this state.
[[nodiscard]] Result<void> write(const Journal& journal, State state);
[[nodiscard]] std::optional<Journal> read(const Uuid& id, State state);
/// The clean-ups in this state.
[[nodiscard]] std::vector<Uuid> all(State state);
void remove(const Uuid& id, State state);
/// Notes that the clean-up is in the history. On failure the state stays, and the next start handles it.
void settle(const Uuid& id);
/// Removes the unfinished files of killed processes.
void removeUnfinished();

} // namespace Journals
} // namespace orlen
