#pragma once

#include <cerrno>
#include <cstdint>
#include <utility>

/// A file that only occupies space, so that a clean-up still works on a full disk: there it is given up piece
/// by piece for info files and the record, and recreated once there is space. Any thread; blocks on the disk.
namespace orlen::Reserve {

/// What the space is needed for. The last part of the reserve is kept for the record of what was moved.
enum class Use { items, record };

/// Creates the reserve, or restores it to full size, if the disk has plenty of space. Failure is ignored.
void refill();

/// Gives up a piece. False if none is left for this use.
[[nodiscard]] bool giveUp(Use use);

/// Bytes the reserve occupies now.
[[nodiscard]] std::int64_t size();

/// Runs a step that returns a Result, and repeats it with more space as long as it fails for lack of space.
template <typename Step>
auto withRoom(Use use, Step step)
{
    auto done = step();
    while ((done.error() == ENOSPC || done.error() == EDQUOT) && giveUp(use))
        done = step();
    return done;
}

} // namespace orlen::Reserve
