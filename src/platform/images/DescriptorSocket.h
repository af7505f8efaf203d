#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Exchanges messages and open files with another process, over a socket that preserves message boundaries.
namespace orlen::DescriptorSocket {

struct Pair {
    UniqueFd ours;
    UniqueFd theirs; ///< for the other process
};

[[nodiscard]] Result<Pair> makePair();

/// Sends a message; waits while the other side is slow to read. False if the other end is closed.
[[nodiscard]] bool send(int socket, std::string_view message);
/// Sends a message with open files. Never waits; false if it cannot be delivered.
[[nodiscard]] bool sendWithFiles(int socket, std::string_view message, std::span<const int> files);

/// The next message, without waiting. Nothing if there is none, the other end is closed, or it exceeds
/// `limit` bytes. Files that come with it are dropped.
[[nodiscard]] std::optional<std::string> receive(int socket, std::size_t limit);

struct Message {
    std::string bytes;
    std::vector<UniqueFd> files;
};

/// Messages with more files are refused.
inline constexpr std::size_t kMostFiles = 2;

/// The next message with its files. Nothing if the other end is closed or the message exceeds `limit` bytes;
/// also after waiting for `patience`, and then this end accepts no further message.
[[nodiscard]] std::optional<Message> receiveWithFiles(int socket, std::size_t limit,
                                                      std::chrono::milliseconds patience);

} // namespace orlen::DescriptorSocket
