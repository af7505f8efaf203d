#include "cli/Process.h"

#include "platform/files/UniqueFd.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orlen {

namespace {

[[noreturn]] void become(const std::string& program, const std::vector<std::string>& arguments)
{
    std::vector<char*> argv{const_cast<char*>("orlen")};
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    // A program started in the background may have been told to ignore Ctrl-C.
    std::signal(SIGINT, SIG_DFL);
    ::execv(program.c_str(), argv.data());
    ::_exit(127);
}

struct Pipe {
    UniqueFd reading;
    UniqueFd writing;
};

Pipe makePipe()
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        std::abort();
    return {UniqueFd(ends[0]), UniqueFd(ends[1])};
}

std::string readAll(int fd)
{
    std::string all;
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = ::read(fd, buffer.data(), buffer.size())) > 0;)
        all.append(buffer.data(), static_cast<std::size_t>(count));
    return all;
}

int statusOf(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

void holdBackAnInterrupt()
{
    sigset_t interrupt;
    ::sigemptyset(&interrupt);
    ::sigaddset(&interrupt, SIGINT);
    ::sigprocmask(SIG_BLOCK, &interrupt, nullptr);
    ::raise(SIGINT);
}

Process::Outcome started(const Process& process, void (*prepare)())
{
    Pipe out = makePipe();
    Pipe err = makePipe();
    const pid_t child = ::fork();
    if (child == 0) {
        const UniqueFd nothing(::open("/dev/null", O_RDONLY));
        ::dup2(nothing.get(), STDIN_FILENO);
        ::dup2(out.writing.get(), STDOUT_FILENO);
        ::dup2(err.writing.get(), STDERR_FILENO);
        prepare();
        become(process.program, process.arguments);
    }
    out.writing.reset();
    err.writing.reset();
    Process::Outcome outcome;
    std::thread errors([&] { outcome.err = readAll(err.reading.get()); });
    outcome.out = readAll(out.reading.get());
    errors.join();
    outcome.status = statusOf(child);
    return outcome;
}

} // namespace

Process::Outcome Process::run() const
{
    return started(*this, [] {});
}

Process::Outcome Process::runInterrupted() const
{
    return started(*this, holdBackAnInterrupt);
}

Process::Outcome Process::runOnTerminal(const std::string& prompt,
                                        const std::function<std::string()>& typed) const
{
    int terminal = -1;
    const winsize size{24, 80, 0, 0};
    const pid_t child = ::forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        ::setenv("TERM", "xterm", 1);
        become(program, arguments);
    }
    const UniqueFd owner(terminal);
    Outcome outcome;
    bool isAnswered = false;
    std::array<char, 4096> buffer{};
    // Reading fails once the program has closed its side.
    for (ssize_t count = 0; (count = ::read(terminal, buffer.data(), buffer.size())) > 0;) {
        outcome.out.append(buffer.data(), static_cast<std::size_t>(count));
        if (!isAnswered && outcome.out.find(prompt) != std::string::npos) {
            isAnswered = true;
            const std::string answer = typed();
            if (::write(terminal, answer.data(), answer.size()) < 0)
                break;
        }
    }
    outcome.status = statusOf(child);
    return outcome;
}

} // namespace orlen
