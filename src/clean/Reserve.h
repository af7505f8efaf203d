#pragma once

#include <cerrno>
#include <cstdint>
#include <utility>

/// A file of the program's own that does nothing but occupy room, so that a clean-up works on a disk that is
/// full: there it is given up piece by piece for info files and the record, and made again when there is
/// room. Any thread; blocks on the disk.
namespace orlen::Reserve {

/// What the room is wanted for. The last part of the reserve is kept for the record of what was moved.
enum class Use { items, record };

/// Makes the reserve, or brings it back to its size, when the disk has plenty of room. A failure is ignored.
void refill();

/// Gives up a piece. False when there is none left for this use.
[[nodiscard]] bool giveUp(Use use);

/// Bytes that the reserve occupies at present.
[[nodiscard]] std::int64_t size();

/// Takes a step that returns a Result, and takes it again with more room as long as it fails for want of it.
template <typename Step>
auto withRoom(Use use, Step step)
{
    auto done = step();
    while ((done.error() == ENOSPC || done.error() == EDQUOT) && giveUp(use))
        done = step();
    return done;
}

} // namespace orlen::Reserve
