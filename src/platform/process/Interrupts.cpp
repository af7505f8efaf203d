#include "platform/process/Interrupts.h"

#include "platform/files/Retrying.h"

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace orlen {

namespace {

std::atomic<int> receiver{-1};

extern "C" void noteSignal(int /*number*/)
{
    const int before = errno;
    const std::uint64_t one = 1;
    // A failure cannot be handled here, and a full counter is readable anyway.
    [[maybe_unused]] const auto written = ::write(receiver.load(), &one, sizeof one);
    errno = before;
}

} // namespace

Interrupts::Interrupts() : m_counter(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    receiver = m_counter.get();
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    sigset_t heard;
    ::sigemptyset(&heard);
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaddset(&heard, kSignals[i]);
        ::sigaction(kSignals[i], nullptr, &m_before[i]);
        if (m_before[i].sa_handler != SIG_IGN)
            ::sigaction(kSignals[i], &action, nullptr);
    }
    // The program may have been started with blocked signals; one that arrived meanwhile is delivered now.
    ::pthread_sigmask(SIG_UNBLOCK, &heard, nullptr);
}

Interrupts::~Interrupts()
{
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &m_before[i], nullptr);
    receiver = -1;
}

int Interrupts::take()
{
    std::uint64_t count = 0;
    const auto bytes = retried([&] { return ::read(m_counter.get(), &count, sizeof count); });
    return bytes == sizeof count ? static_cast<int>(count) : 0;
}

} // namespace orlen
