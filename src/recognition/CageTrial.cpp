#include "recognition/Cage.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen::Cage {

namespace {

using Wall = CageReport::Wall;

// Names below a missing folder: tried outside a cage, they change nothing.
constexpr const char* kNowhere = "/orlen-nowhere/file";
constexpr std::size_t kPage = 4096;

/// The convention of system calls: -1 and errno.
using Try = long (*)();

/// A descriptor we should not have got is closed again.
long closed(long descriptor)
{
    return descriptor < 0 ? descriptor : ::close(static_cast<int>(descriptor));
}

long startProcess()
{
    const long child = ::syscall(SYS_clone, SIGCHLD, nullptr, nullptr, nullptr, nullptr);
    if (child == 0)
        ::_exit(0);
    return child < 0 ? child : ::waitpid(static_cast<pid_t>(child), nullptr, 0);
}

long runProgram()
{
    std::array<char*, 1> none{nullptr};
    return ::execve(kNowhere, none.data(), none.data());
}

long connectSomewhere()
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    return ::connect(STDIN_FILENO, reinterpret_cast<const sockaddr*>(&address), sizeof address);
}

long makePair()
{
    std::array<int, 2> ends{};
    const long made = ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data());
    if (made == 0) {
        (void)closed(ends[0]);
        (void)closed(ends[1]);
    }
    return made;
}

long readMemory()
{
    char from = 'a';
    char into = 'b';
    const iovec local{&into, 1};
    const iovec remote{&from, 1};
    return ::process_vm_readv(::getpid(), &local, 1, &remote, 1, 0);
}

long mapCode()
{
    void* const place =
        ::mmap(nullptr, kPage, PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return place == MAP_FAILED ? -1 : ::munmap(place, kPage);
}

long turnIntoCode()
{
    void* const place = ::mmap(nullptr, kPage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        return 0;
    const long turned = ::mprotect(place, kPage, PROT_READ | PROT_EXEC);
    const int error = errno;
    (void)::munmap(place, kPage);
    errno = error;
    return turned;
}

/// A state rather than a call, reported like one.
long unless(bool holds)
{
    errno = EPERM;
    return holds ? -1 : 0;
}

long keepCore()
{
    rlimit limit{};
    return unless(::getrlimit(RLIMIT_CORE, &limit) == 0 && limit.rlim_max == 0);
}

struct Row {
    Wall wall;
    const char* name;
    Try attempt;
};

constexpr Row kRows[] = {
    {Wall::files, "open the root folder",
     [] { return closed(::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC)); }},
    {Wall::files, "open a file", [] { return closed(::open("/etc/passwd", O_RDONLY | O_CLOEXEC)); }},
#ifndef ORLEN_SANITIZED // only the filter of system calls refuses it, which sanitizers do without
    {Wall::files, "name a file", [] { return closed(::open("/etc/passwd", O_PATH | O_CLOEXEC)); }},
#endif
    {Wall::files, "make a file", [] { return closed(::open("/tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600)); }},
    {Wall::calls, "read its own environment",
     [] { return closed(::open("/proc/self/environ", O_RDONLY | O_CLOEXEC)); }},
    {Wall::calls, "remove a file", [] { return long{::unlink(kNowhere)}; }},
    {Wall::calls, "rename a file", [] { return long{::rename(kNowhere, kNowhere)}; }},
    {Wall::calls, "make a folder", [] { return long{::mkdirat(AT_FDCWD, kNowhere, 0700)}; }},
    {Wall::calls, "make a link", [] { return long{::symlink(kNowhere, kNowhere)}; }},
    {Wall::calls, "change rights", [] { return ::syscall(SYS_fchmodat, AT_FDCWD, kNowhere, 0600); }},
    {Wall::calls, "make memory with a name", [] { return closed(::memfd_create("try", MFD_CLOEXEC)); }},
    {Wall::calls, "ask for its parent", [] { return ::syscall(SYS_getppid); }},
    {Wall::network, "make a socket for the internet",
     [] { return closed(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)); }},
    {Wall::network, "make a socket of this machine",
     [] { return closed(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)); }},
    {Wall::network, "make a pair of sockets", makePair},
    {Wall::network, "connect", connectSomewhere},
    {Wall::network, "listen", [] { return long{::listen(STDIN_FILENO, 1)}; }},
    {Wall::processes, "start a process", startProcess},
    {Wall::processes, "start a process another way", [] { return ::syscall(SYS_clone3, nullptr, 0); }},
    {Wall::processes, "run a program", runProgram},
    {Wall::others, "trace a process", [] { return ::ptrace(PTRACE_PEEKUSER, ::getpid(), nullptr, nullptr); }},
    {Wall::others, "read the memory of a process", readMemory},
    {Wall::others, "signal a process", [] { return long{::kill(::getpid(), 0)}; }},
    {Wall::others, "hold a process", [] { return closed(::syscall(SYS_pidfd_open, ::getpid(), 0)); }},
    {Wall::code, "make memory for code", mapCode},
    {Wall::code, "turn memory into code", turnIntoCode},
    {Wall::memory, "be looked into", [] { return unless(::prctl(PR_GET_DUMPABLE, 0, 0, 0, 0) == 0); }},
    {Wall::memory, "leave a core file", keepCore},
};

bool isRefused(Try attempt)
{
    errno = 0;
    return attempt() == -1 && (errno == EPERM || errno == EACCES || errno == ENOSYS);
}

} // namespace

CageReport tried(int landlock)
{
    CageReport report{landlock, {}};
    for (const Row& row : kRows)
        report.attempts.push_back({row.wall, row.name, isRefused(row.attempt)});
    return report;
}

} // namespace orlen::Cage
