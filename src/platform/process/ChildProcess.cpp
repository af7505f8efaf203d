#include "platform/process/ChildProcess.h"

#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/files/UniqueFd.h"
#include "platform/process/ChildEnd.h"
#include "platform/process/ProcessStart.h"
#include "platform/process/Threads.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen::ChildProcess {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* kUsualPath = "/usr/local/bin:/usr/bin:/bin";

/// A started program whose output is collected until it exits.
class Running {
public:
    Running(pid_t child, UniqueFd output)
        : m_child(child), m_end(ChildEnd::descriptorOf(child)), m_output(std::move(output))
    {
    }

    /// The exit status and all output. On failure the program has been killed.
    std::optional<Outcome> finish(Clock::time_point deadline)
    {
        if (!m_end.isOpen() || !collect(deadline)) {
            ::kill(-m_child, SIGKILL); // Not waited for yet, so the number is still its own.
            ChildEnd::awaitKilled(m_child);
            return std::nullopt;
        }
        const std::optional<int> status = ChildEnd::await(m_child);
        if (!status || !WIFEXITED(*status) || !PathText::isValidUtf8(m_text))
            return std::nullopt;
        return Outcome{WEXITSTATUS(*status), std::move(m_text)};
    }

private:
    /// False if a limit was reached first.
    bool collect(Clock::time_point deadline)
    {
        while (true) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
            if (left.count() <= 0)
                return false;
            constexpr std::chrono::milliseconds::rep kLongest = 60'000;
            std::array<pollfd, 2> waiting{{{m_end.get(), POLLIN, 0}, {m_output.get(), POLLIN, 0}}};
            const int ready = retried([&] {
                return ::poll(waiting.data(), waiting.size(),
                              static_cast<int>(std::min(left.count(), kLongest)));
            });
            // Check for the end before the last read, which then gets everything.
            const bool hasEnded = waiting[0].revents != 0;
            if (ready < 0 || !readWhatIsThere())
                return false;
            if (hasEnded)
                return true;
        }
    }

    /// False if the output is too long.
    bool readWhatIsThere()
    {
        std::array<char, 64UL * 1024> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
        while (m_output.isOpen()) {
            const auto got = retried([&] { return ::read(m_output.get(), buffer.data(), buffer.size()); });
            if (got < 0 && errno == EAGAIN)
                return true;
            if (got <= 0)
                m_output.reset();
            else
                m_text.append(buffer.data(), static_cast<std::size_t>(got));
            if (m_text.size() > kOutputLimit)
                return false;
        }
        return true;
    }

    pid_t m_child;
    UniqueFd m_end;
    UniqueFd m_output;
    std::string m_text;
};

bool isExecutableFile(const std::string& path)
{
    struct stat status {};
    return Reachability::check(path, Reachability::LastLink::followed).ok() &&
           ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

} // namespace

std::optional<Outcome> run(const Call& call)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        return std::nullopt;
    UniqueFd reading(ends[0]);
    UniqueFd writing(ends[1]);
    // Only this end: the program may not expect such an output.
    if (::fcntl(reading.get(), F_SETFL, O_NONBLOCK) != 0)
        return std::nullopt;
    const Clock::time_point deadline = Clock::now() + call.limit;
    const std::optional<pid_t> child =
        ProcessStart::start(call, ProcessStart::Belonging::ownGroup, {.output = writing.get()});
    writing.reset();
    return child ? Running(*child, std::move(reading)).finish(deadline) : std::nullopt;
}

bool startDetached(const std::vector<std::string>& arguments)
{
    const std::optional<pid_t> child =
        ProcessStart::start({arguments, {}}, ProcessStart::Belonging::ownSession, {});
    if (!child)
        return false;
    // The program may outlive this one; until then somebody has to reap it.
    ChildEnd::awaitAside(*child);
    return true;
}

std::string programPath(const std::string& name)
{
    if (name.find('/') != std::string::npos)
        return isExecutableFile(name) ? name : std::string();
    const char* variable = std::getenv("PATH");
    std::string_view path = variable == nullptr ? kUsualPath : variable;
    while (!name.empty() && !path.empty()) {
        const std::size_t colon = std::min(path.find(':'), path.size());
        const std::string_view folder = path.substr(0, colon);
        path.remove_prefix(std::min(colon + 1, path.size()));
        // Nobody installed what happens to be in the current folder.
        if (!folder.starts_with('/'))
            continue;
        std::string candidate = PathText::join(folder, name);
        if (isExecutableFile(candidate))
            return candidate;
    }
    return {};
}

} // namespace orlen::ChildProcess
