#include "platform/process/Terminal.h"

#include "platform/files/Retrying.h"
#include "platform/files/UniqueFd.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace orlen::Terminal {

namespace {

int descriptor(Stream stream)
{
    switch (stream) {
    case Stream::input:
        return STDIN_FILENO;
    case Stream::output:
        return STDOUT_FILENO;
    case Stream::error:
        return STDERR_FILENO;
    }
    return -1;
}

/// The terminal of standard input, opened again for non-blocking reads: Ctrl-C drops what was typed, even
/// between polling and reading. The mode of the original descriptor is shared with the shell.
UniqueFd openInput()
{
    const char* name = ::ttyname(STDIN_FILENO);
    if (name == nullptr)
        return {};
    return UniqueFd(::open(name, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

/// Waits for input; false if the interrupt came first.
bool awaitInput(int input, int interrupt)
{
    std::array<pollfd, 2> watched{{{input, POLLIN, 0}, {interrupt, POLLIN, 0}}};
    return retried([&] { return ::poll(watched.data(), watched.size(), -1); }) > 0 && watched[1].revents == 0;
}

} // namespace

bool isTerminal(Stream stream)
{
    return ::isatty(descriptor(stream)) == 1;
}

std::optional<int> width(Stream stream)
{
    winsize size{};
    if (::ioctl(descriptor(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return std::nullopt;
    return size.ws_col;
}

std::optional<std::string> readLine(int interrupt)
{
    const UniqueFd own = openInput();
    const int input = own.isOpen() ? own.get() : STDIN_FILENO;
    std::string line;
    for (char next = 0; awaitInput(input, interrupt);) {
        // One byte at a time, to leave everything after the line to the next reader.
        const auto count = retried([&] { return ::read(input, &next, 1); });
        if (count < 0 && errno == EAGAIN)
            continue;
        if (count != 1)
            return std::nullopt;
        if (next == '\n')
            return line;
        line += next;
    }
    return std::nullopt;
}

} // namespace orlen::Terminal
