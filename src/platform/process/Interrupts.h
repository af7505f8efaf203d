#pragma once

#include "platform/files/UniqueFd.h"

#include <array>
#include <csignal>

namespace orlen {

/// Turns the signals that ask a program to end (interrupt, terminate, hang-up) into something readable, so
/// that work in progress can end in its own time. While one exists these signals end nothing by themselves. A
/// signal that was ignored when it was made, as `nohup` does, stays ignored. At most one at a time; made and
/// destroyed on the main thread.
class Interrupts {
public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// Becomes readable when a signal has arrived; -1 when the system could not give one.
    [[nodiscard]] int descriptor() const { return m_counter.get(); }
    /// How many arrived since the last call; does not wait.
    [[nodiscard]] int take();

private:
    static constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

    UniqueFd m_counter;
    std::array<struct sigaction, kSignals.size()> m_before{};
};

} // namespace orlen
