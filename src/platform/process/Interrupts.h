#pragma once

#include "platform/files/UniqueFd.h"

#include <array>
#include <csignal>

namespace orlen {

/// Turns the signals that ask a program to end (SIGINT, SIGTERM, SIGHUP) into a readable descriptor, so that
/// work in progress can finish properly. While the object exists, they end nothing by themselves. A signal
/// that was already ignored, as under `nohup`, stays ignored. At most one object at a time; create and
/// destroy it on the main thread.
class Interrupts {
public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// Readable once a signal has arrived; -1 if the system could not provide one.
    [[nodiscard]] int descriptor() const { return m_counter.get(); }
    /// How many arrived since the last call. Does not wait.
    [[nodiscard]] int take();

private:
    static constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

    UniqueFd m_counter;
    std::array<struct sigaction, kSignals.size()> m_before{};
};

} // namespace orlen
