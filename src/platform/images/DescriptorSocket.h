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

/// Messages and open files between two processes, over a socket that keeps messages apart.
namespace orlen::DescriptorSocket {

struct Pair {
    UniqueFd ours;
    UniqueFd theirs; ///< for the other process
};

[[nodiscard]] Result<Pair> makePair();

/// Sends a message; waits while the other side is slow to read. False when nobody is there to read it.
[[nodiscard]] bool send(int socket, std::string_view message);
/// Sends a message and open files with it. Never waits; false when nobody is there to take it.
[[nodiscard]] bool sendWithFiles(int socket, std::string_view message, std::span<const int> files);

/// The message that is there. Nothing when there is none, the other end is closed, or it is longer than
/// `limit` bytes. Never waits; files that come with it are dropped.
[[nodiscard]] std::optional<std::string> receive(int socket, std::size_t limit);

struct Message {
    std::string bytes;
    std::vector<UniqueFd> files;
};

/// More of them are refused.
inline constexpr std::size_t kMostFiles = 2;

/// The message that comes next, with its files. Nothing when the other end is closed or it is longer than
/// `limit` bytes. When none came for as long as the patience lasts, nothing either, and no further message
/// can be sent to this end.
[[nodiscard]] std::optional<Message> receiveWithFiles(int socket, std::size_t limit,
                                                      std::chrono::milliseconds patience);

} // namespace orlen::DescriptorSocket
