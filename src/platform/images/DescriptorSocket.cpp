#include "platform/images/DescriptorSocket.h"

#include "platform/Retrying.h"

#include <array>
#include <cstring>
#include <sys/socket.h>

namespace orlen::DescriptorSocket {

namespace {

/// Room for the system's description of one descriptor.
struct alignas(cmsghdr) Attachment {
    std::array<char, CMSG_SPACE(sizeof(int))> bytes{};
};

/// A message of one byte with room for a descriptor.
struct FileMessage {
    FileMessage()
    {
        header.msg_iov = &part;
        header.msg_iovlen = 1;
        header.msg_control = attachment.bytes.data();
        header.msg_controllen = attachment.bytes.size();
    }
    FileMessage(const FileMessage&) = delete;
    FileMessage& operator=(const FileMessage&) = delete;

    Attachment attachment;
    char byte = 'f';
    iovec part{&byte, 1};
    msghdr header{};
};

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

bool sendFile(int socket, int file)
{
    FileMessage message;
    cmsghdr* description = CMSG_FIRSTHDR(&message.header);
    description->cmsg_level = SOL_SOCKET;
    description->cmsg_type = SCM_RIGHTS;
    description->cmsg_len = CMSG_LEN(sizeof(int));
    std::memcpy(CMSG_DATA(description), &file, sizeof file);
    return retried([&] { return ::sendmsg(socket, &message.header, MSG_NOSIGNAL | MSG_DONTWAIT); }) == 1;
}

std::optional<UniqueFd> receiveFile(int socket)
{
    FileMessage message;
    if (retried([&] { return ::recvmsg(socket, &message.header, MSG_CMSG_CLOEXEC); }) != 1)
        return std::nullopt;
    const cmsghdr* description = CMSG_FIRSTHDR(&message.header);
    if (description == nullptr || description->cmsg_level != SOL_SOCKET ||
        description->cmsg_type != SCM_RIGHTS || description->cmsg_len != CMSG_LEN(sizeof(int)))
        return std::nullopt;
    int file = -1;
    std::memcpy(&file, CMSG_DATA(description), sizeof file);
    return UniqueFd(file);
}

std::optional<std::string> receive(int socket, std::size_t limit)
{
    std::string message(limit, '\0');
    // The length of the whole message is told, whatever fits.
    const auto length =
        retried([&] { return ::recv(socket, message.data(), message.size(), MSG_DONTWAIT | MSG_TRUNC); });
    if (length <= 0 || static_cast<std::size_t>(length) > limit)
        return std::nullopt;
    message.resize(static_cast<std::size_t>(length));
    return message;
}

} // namespace orlen::DescriptorSocket
