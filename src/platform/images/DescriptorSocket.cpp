#include "platform/images/DescriptorSocket.h"

#include "platform/files/Retrying.h"

#include <array>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

namespace orlen::DescriptorSocket {

namespace {

/// A system message that points to its bytes, with room for descriptors.
struct SystemMessage {
    SystemMessage(char* bytes, std::size_t length) : part{bytes, length}
    {
        header.msg_iov = &part;
        header.msg_iovlen = 1;
        header.msg_control = room.data();
        header.msg_controllen = room.size();
    }
    SystemMessage(const SystemMessage&) = delete;
    SystemMessage& operator=(const SystemMessage&) = delete;

    alignas(cmsghdr) std::array<char, CMSG_SPACE(kMostFiles * sizeof(int))> room{};
    iovec part;
    msghdr header{};
};

std::vector<UniqueFd> filesOf(msghdr& header)
{
    std::vector<UniqueFd> files;
    for (cmsghdr* part = CMSG_FIRSTHDR(&header); part != nullptr; part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS)
            continue;
        for (std::size_t at = 0; CMSG_LEN(at + sizeof(int)) <= part->cmsg_len; at += sizeof(int)) {
            int file = -1;
            std::memcpy(&file, CMSG_DATA(part) + at, sizeof file);
            files.emplace_back(file);
        }
    }
    return files;
}

/// An empty message means the end. The length is reported even if the buffer is too small.
bool fits(ssize_t length, const std::string& buffer)
{
    return length > 0 && static_cast<std::size_t>(length) <= buffer.size();
}

} // namespace

Result<Pair> makePair()
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return Errno{errno};
    return Pair{UniqueFd(ends[0]), UniqueFd(ends[1])};
}

bool send(int socket, std::string_view message)
{
    const auto sent =
        retried([&] { return ::send(socket, message.data(), message.size(), MSG_NOSIGNAL | MSG_EOR); });
    return sent == static_cast<ssize_t>(message.size());
}

bool sendWithFiles(int socket, std::string_view message, std::span<const int> files)
{
    if (files.empty() || files.size() > kMostFiles)
        return false;
    std::string bytes(message);
    SystemMessage system(bytes.data(), bytes.size());
    cmsghdr* const description = CMSG_FIRSTHDR(&system.header);
    description->cmsg_level = SOL_SOCKET;
    description->cmsg_type = SCM_RIGHTS;
    description->cmsg_len = CMSG_LEN(files.size_bytes());
    std::memcpy(CMSG_DATA(description), files.data(), files.size_bytes());
    system.header.msg_controllen = CMSG_SPACE(files.size_bytes());
    const auto sent = retried([&] { return ::sendmsg(socket, &system.header, MSG_NOSIGNAL | MSG_DONTWAIT); });
    return sent == static_cast<ssize_t>(bytes.size());
}

std::optional<std::string> receive(int socket, std::size_t limit)
{
    std::string message(limit, '\0');
    const auto length =
        retried([&] { return ::recv(socket, message.data(), message.size(), MSG_DONTWAIT | MSG_TRUNC); });
    if (!fits(length, message))
        return std::nullopt;
    message.resize(static_cast<std::size_t>(length));
    return message;
}

std::optional<Message> receiveWithFiles(int socket, std::size_t limit, std::chrono::milliseconds patience)
{
    pollfd waiting{socket, POLLIN, 0};
    // Read what arrived at the last moment.
    if (retried([&] { return ::poll(&waiting, 1, static_cast<int>(patience.count())); }) == 0)
        ::shutdown(socket, SHUT_RD);
    std::string bytes(limit, '\0');
    SystemMessage system(bytes.data(), bytes.size());
    const auto length =
        retried([&] { return ::recvmsg(socket, &system.header, MSG_CMSG_CLOEXEC | MSG_TRUNC); });
    if (length <= 0)
        return std::nullopt;
    Message message{{}, filesOf(system.header)};
    if (!fits(length, bytes) || (system.header.msg_flags & MSG_CTRUNC) != 0)
        return std::nullopt;
    bytes.resize(static_cast<std::size_t>(length));
    message.bytes = std::move(bytes);
    return message;
}

} // namespace orlen::DescriptorSocket
