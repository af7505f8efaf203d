#include "support/Command.h"

#include "platform/files/UniqueFd.h"
#include "support/TempHome.h"

#include <array>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen {

namespace {

struct Pipe {
    UniqueFd out;
    UniqueFd in;

    static Pipe make()
    {
        std::array<int, 2> ends{-1, -1};
        (void)!::pipe2(ends.data(), O_CLOEXEC);
        return {UniqueFd(ends[0]), UniqueFd(ends[1])};
    }
};

std::string readAll(int fd)
{
    std::string text;
    std::array<char, 4096> buffer{};
    for (ssize_t got = ::read(fd, buffer.data(), buffer.size()); got > 0;
         got = ::read(fd, buffer.data(), buffer.size()))
        text.append(buffer.data(), static_cast<std::size_t>(got));
    return text;
}

} // namespace

CommandOutcome runCommand(const std::vector<std::string>& arguments, const std::string& input)
{
    TempHome::useSystemTools();
    std::vector<std::string> words{"timeout", "30"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    Pipe toChild = Pipe::make();
    Pipe fromChild = Pipe::make();
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(toChild.out.get(), STDIN_FILENO);
        ::dup2(fromChild.in.get(), STDOUT_FILENO);
        ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        ::execvp(argv[0], argv.data());
        ::_exit(127);
    }
    toChild.out.reset();
    fromChild.in.reset();
    // Inputs are a line or two, which a pipe holds without a reader.
    (void)!::write(toChild.in.get(), input.data(), input.size());
    toChild.in.reset();
    CommandOutcome outcome;
    outcome.output = readAll(fromChild.out.get());
    int status = 0;
    if (::waitpid(child, &status, 0) == child && WIFEXITED(status))
        outcome.status = WEXITSTATUS(status);
    return outcome;
}

bool hasCommand(const std::string& name)
{
    return runCommand({"sh", "-c", "command -v \"$1\"", "sh", name}).status == 0;
}

} // namespace orlen
