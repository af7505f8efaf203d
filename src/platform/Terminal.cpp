#include "platform/Terminal.h"

#include "platform/Retrying.h"

#include <array>
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

/// Waits for input; false when the interrupt came first.
bool awaitInput(int interrupt)
{
    std::array<pollfd, 2> watched{{{STDIN_FILENO, POLLIN, 0}, {interrupt, POLLIN, 0}}};
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
    std::string line;
    for (char next = 0; awaitInput(interrupt);) {
        // One byte at a time, so that nothing behind the line is taken from whoever reads next.
        if (retried([&] { return ::read(STDIN_FILENO, &next, 1); }) != 1)
            return std::nullopt;
        if (next == '\n')
            return line;
        line += next;
    }
    return std::nullopt;
}

} // namespace orlen::Terminal
