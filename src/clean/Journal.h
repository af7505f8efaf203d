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

/// What a clean-up or a restore is about to move, written down before it moves the first item.
struct Journal {
    struct Item {
        std::string path; ///< where the item is, or was, before the clean-up
        std::int64_t size = 0;
        std::uint64_t device = 0; ///< of the disk; holds only until the next restart of the machine
        LastingIdentity identity;
        friend bool operator==(const Item&, const Item&) = default;
    };

    Uuid id;           ///< that of the record
    TimePoint started; ///< whole seconds
    std::string title; ///< that of the plan
    std::vector<Item> items;

    friend bool operator==(const Journal&, const Journal&) = default;

    [[nodiscard]] std::string text() const;
    /// Nothing when the text is no journal; an item that is not understood is left out. Pure.
    [[nodiscard]] static std::optional<Journal> parse(std::string_view text);
};

/// The journals on the disk, one small file for each clean-up in the folder "journal" of the data folder.
/// Three states, told by the file's name: a clean-up that has begun; one that is in the history, kept so that
/// its items can be recognised in the Trash; a restore that has begun. Any thread; blocks on the disk.
namespace Journals {

enum class State { cleaning, cleaned, restoring };

/// Synced before it returns. On failure there is no journal of this state.
[[nodiscard]] Result<void> write(const Journal& journal, State state);
[[nodiscard]] std::optional<Journal> read(const Uuid& id, State state);
/// The clean-ups that are in this state.
[[nodiscard]] std::vector<Uuid> all(State state);
void remove(const Uuid& id, State state);
/// The clean-up is in the history by now. On failure it stays as it was, which the next start finds.
void settle(const Uuid& id);
/// Removes what killed writings left behind.
void removeUnfinished();

} // namespace Journals
} // namespace orlen
