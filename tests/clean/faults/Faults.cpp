#include "clean/faults/Faults.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>

namespace orlen::Faults {

namespace {

std::atomic<bool> isArmed{false};
std::atomic<int> calls{0};
int wanted = -1;
int wantedError = 0;
Extent wantedExtent = Extent::once;

} // namespace

void arm(int number, int error, Extent extent)
{
    wanted = number;
    wantedError = error;
    wantedExtent = extent;
    calls = 0;
    isArmed = true;
}

int disarm()
{
    isArmed = false;
    return calls;
}

/// Whether the present call fails; errno is set then.
bool fails()
{
    if (!isArmed)
        return false;
    const int number = calls++;
    if (wanted < 0 || number < wanted || (number > wanted && wantedExtent == Extent::once))
        return false;
    errno = wantedError;
    return true;
}

template <typename Function>
Function* real(const char* name)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the only way that POSIX offers
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace orlen::Faults

// What the program calls, in the forms that the headers give these names with 64-bit offsets.
extern "C" {

// NOLINTBEGIN(bugprone-macro-parentheses)
#define ORLEN_FAULT(name, parameters, arguments)                                                             \
    int name parameters                                                                                      \
    {                                                                                                        \
        static auto* const next = orlen::Faults::real<int parameters>(#name);                                \
        return orlen::Faults::fails() ? -1 : next arguments;                                                 \
    }
// NOLINTEND(bugprone-macro-parentheses)

ORLEN_FAULT(mkdir, (const char* path, mode_t mode), (path, mode))
ORLEN_FAULT(mkdirat, (int folder, const char* name, mode_t mode), (folder, name, mode))
ORLEN_FAULT(fsync, (int file), (file))
ORLEN_FAULT(fchmod, (int file, mode_t mode), (file, mode))
ORLEN_FAULT(ftruncate64, (int file, off64_t length), (file, length))
ORLEN_FAULT(rename, (const char* from, const char* to), (from, to))
ORLEN_FAULT(renameat, (int a, const char* from, int b, const char* to), (a, from, b, to))
ORLEN_FAULT(renameat2, (int a, const char* from, int b, const char* to, unsigned flags),
            (a, from, b, to, flags))
ORLEN_FAULT(unlink, (const char* path), (path))
ORLEN_FAULT(unlinkat, (int folder, const char* name, int flags), (folder, name, flags))

#undef ORLEN_FAULT

ssize_t write(int file, const void* bytes, size_t length)
{
    static auto* const next = orlen::Faults::real<ssize_t(int, const void*, size_t)>("write");
    return orlen::Faults::fails() ? -1 : next(file, bytes, length);
}

int open64(const char* path, int flags, ...)
{
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static auto* const next = orlen::Faults::real<int(const char*, int, ...)>("open64");
    return (flags & O_CREAT) != 0 && orlen::Faults::fails() ? -1 : next(path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...)
{
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static auto* const next = orlen::Faults::real<int(int, const char*, int, ...)>("openat64");
    return (flags & O_CREAT) != 0 && orlen::Faults::fails() ? -1 : next(folder, path, flags, mode);
}
}
