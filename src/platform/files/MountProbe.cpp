#include "platform/files/MountProbe.h"

#include "platform/files/Retrying.h"

#include <condition_variable>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace orlen {

namespace {

using Clock = std::chrono::steady_clock;

/// Runs in the new process, a copy of one thread among several: system calls only.
[[noreturn]] void askAndEnd(const char* folder, pid_t parent)
{
    // Leave nobody behind waiting forever or holding a lock or pipe of this program.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(1);
    ::syscall(SYS_close_range, 0U, ~0U, 0U);
    struct statx status {};
    // What the kernel has cached says nothing about the server.
    (void)::statx(AT_FDCWD, folder, AT_STATX_FORCE_SYNC, STATX_BASIC_STATS, &status);
    (void)::open(folder, O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
    ::_exit(0);
}

/// Whether the folder answered. Waits as long as it takes.
bool isAnswered(const std::string& folder)
{
    const pid_t self = ::getpid();
    const pid_t child = ::fork();
    if (child == 0)
        askAndEnd(folder.c_str(), self);
    if (child < 0)
        return false;
    int status = 0;
    const pid_t ended = retried([&] { return ::waitpid(child, &status, 0); });
    // If this process ignores SIGCHLD, it only learns that the child ended.
    return ended != child || WIFEXITED(status);
}

} // namespace

struct MountProbe::Question {
    explicit Question(std::string asked) : folder(std::move(asked)) {}

    const std::string folder;
    mutable std::mutex lock;
    std::condition_variable changed;
    bool isAsked = false;
    bool isAnswered = false;
    Clock::time_point deadline;
};

MountProbe::MountProbe(std::string folder) : m_question(std::make_shared<Question>(std::move(folder))) {}

/// Holds the question's lock.
void MountProbe::putQuestion(const std::shared_ptr<Question>& question)
{
    if (question->isAsked)
        return;
    question->isAsked = true;
    question->deadline = Clock::now() + kPatience;
    try {
        // A separate thread, since nothing else may wait for a process indefinitely. The process ends with
        // the thread that started it, so at the latest with the program.
        std::thread([question] {
            const bool hasAnswered = isAnswered(question->folder);
            const std::lock_guard guard(question->lock);
            question->isAnswered = hasAnswered;
            question->changed.notify_all();
        }).detach();
    } catch (const std::system_error&) {
        question->deadline = Clock::now();
    }
}

void MountProbe::ask()
{
    const std::lock_guard lock(m_question->lock);
    putQuestion(m_question);
}

bool MountProbe::answers()
{
    std::unique_lock lock(m_question->lock);
    putQuestion(m_question);
    return m_question->changed.wait_until(lock, m_question->deadline,
                                          [this] { return m_question->isAnswered; });
}

bool MountProbe::hasAnswered() const
{
    const std::lock_guard lock(m_question->lock);
    return m_question->isAnswered;
}

bool MountProbe::isAsked() const
{
    const std::lock_guard lock(m_question->lock);
    return m_question->isAsked;
}

} // namespace orlen
