#include "platform/process/ProcessStart.h"

#include "platform/desktop/SessionBus.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace orlen::ProcessStart {

namespace {

constexpr const char* kNothing = "/dev/null";

/// The state of a new process: none of this one's descriptors, signal settings and group. Uses the system's
/// own call because a forked copy of a threaded process may do almost nothing before exec.
class Start {
public:
    Start(Belonging belonging, const Streams& streams)
    {
        ::posix_spawn_file_actions_init(&m_files);
        ::posix_spawnattr_init(&m_attributes);
        // First, since the descriptor may have a number that is about to be opened.
        if (streams.input >= 0)
            note(::posix_spawn_file_actions_adddup2(&m_files, streams.input, STDIN_FILENO));
        if (streams.output >= 0)
            note(::posix_spawn_file_actions_adddup2(&m_files, streams.output, STDOUT_FILENO));
        else
            note(::posix_spawn_file_actions_addopen(&m_files, STDOUT_FILENO, kNothing, O_WRONLY, 0));
        if (streams.input < 0)
            note(::posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, kNothing, O_RDONLY, 0));
        note(::posix_spawn_file_actions_addopen(&m_files, STDERR_FILENO, kNothing, O_WRONLY, 0));
        note(::posix_spawn_file_actions_addclosefrom_np(&m_files, STDERR_FILENO + 1));
        sigset_t signals;
        ::sigemptyset(&signals);
        note(::posix_spawnattr_setsigmask(&m_attributes, &signals));
        ::sigfillset(&signals);
        note(::posix_spawnattr_setsigdefault(&m_attributes, &signals));
        note(::posix_spawnattr_setpgroup(&m_attributes, 0));
        const int group = belonging == Belonging::ownGroup ? POSIX_SPAWN_SETPGROUP : POSIX_SPAWN_SETSID;
        note(::posix_spawnattr_setflags(
            &m_attributes, static_cast<short>(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | group)));
    }
    ~Start()
    {
        ::posix_spawnattr_destroy(&m_attributes);
        ::posix_spawn_file_actions_destroy(&m_files);
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    /// The new process's id.
    [[nodiscard]] std::optional<pid_t> operator()(const std::string& program, char* const* arguments,
                                                  char* const* environment) const
    {
        pid_t child = -1;
        if (m_error != 0 ||
            ::posix_spawn(&child, program.c_str(), &m_files, &m_attributes, arguments, environment) != 0)
            return std::nullopt;
        return child;
    }

private:
    void note(int error) { m_error = m_error == 0 ? error : m_error; }

    posix_spawn_file_actions_t m_files{};
    posix_spawnattr_t m_attributes{};
    int m_error = 0;
};

bool hasZeroByte(const std::vector<std::string>& texts)
{
    return std::any_of(texts.begin(), texts.end(),
                       [](const std::string& text) { return text.find('\0') != std::string::npos; });
}

/// Null-terminated, as the system expects.
std::vector<char*> pointers(const std::vector<std::string>& texts)
{
    std::vector<char*> list;
    list.reserve(texts.size() + 1);
    for (const std::string& text : texts)
        list.push_back(const_cast<char*>(text.c_str())); // The system only reads them.
    list.push_back(nullptr);
    return list;
}

/// This process's variables, except the given ones and those meant for this process only.
std::vector<std::string> environmentWith(const std::vector<std::string>& given)
{
    std::vector<std::string> variables = given;
    const std::string ownBus = std::string(SessionBus::kVariable).append("=").append(SessionBus::kNowhere);
    for (char** variable = ::environ; variable != nullptr && *variable != nullptr; ++variable) {
        const std::string_view text(*variable);
        if (text == ownBus)
            continue;
        const std::string_view start = text.substr(0, std::min(text.find('='), text.size() - 1) + 1);
        if (std::none_of(given.begin(), given.end(),
                         [&](const std::string& other) { return other.starts_with(start); }))
            variables.emplace_back(text);
    }
    return variables;
}

} // namespace

std::optional<pid_t> start(const ChildProcess::Call& call, Belonging belonging, const Streams& streams)
{
    if (call.arguments.empty() || hasZeroByte(call.arguments) || hasZeroByte(call.environment))
        return std::nullopt;
    const std::string program = ChildProcess::programPath(call.arguments.front());
    if (program.empty())
        return std::nullopt;
    const std::vector<std::string> environment = call.variables == ChildProcess::Variables::given
                                                     ? call.environment
                                                     : environmentWith(call.environment);
    return Start(belonging, streams)(program, pointers(call.arguments).data(), pointers(environment).data());
}

} // namespace orlen::ProcessStart
