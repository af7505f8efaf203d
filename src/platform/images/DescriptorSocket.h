#pragma once

#include "platform/Result.h"
#include "platform/UniqueFd.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// Messages and open files between two processes, over a socket that keeps messages apart.
namespace orlen::DescriptorSocket {

struct Pair {
    UniqueFd ours;
    UniqueFd theirs; ///< for the other process
};

[[nodiscard]] Result<Pair> makePair();

/// Sends a message; waits while the other side is slow to read. False when nobody is there to read it.
[[nodiscard]] bool send(int socket, std::string_view message);
/// Sends an open file. Never waits; false when nobody is there to take it.
[[nodiscard]] bool sendFile(int socket, int file);

/// The file that comes next; waits for it. Nothing when the other end is closed or sends something else.
[[nodiscard]] std::optional<UniqueFd> receiveFile(int socket);
/// The message that is there. Nothing when there is none, the other end is closed, or it is longer than
/// `limit` bytes. Never waits; a file that comes with it is dropped.
[[nodiscard]] std::optional<std::string> receive(int socket, std::size_t limit);

} // namespace orlen::DescriptorSocket
