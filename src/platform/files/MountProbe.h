#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace orlen {

/// Finds out whether a folder answers, without the risk of waiting for it: a call on a file system whose
/// server is gone never returns, and may keep its process from being ended. So a process of its own makes the
/// call. One question only, asked once. Any thread.
class MountProbe {
public:
    /// From the question on; what has not answered by then counts as silent.
    static constexpr std::chrono::milliseconds kPatience{2000};

    explicit MountProbe(std::string folder);

    /// Puts the question without waiting, so that several mounts may think at the same time.
    void ask();
    /// Asks, and waits for an answer until the patience is over, and afterwards not at all. An error is an
    /// answer too. May turn from false to true: an answer that comes late is heard. Any number of threads may
    /// wait.
    [[nodiscard]] bool answers();
    /// Up to now, without asking or waiting.
    [[nodiscard]] bool hasAnswered() const;
    [[nodiscard]] bool isAsked() const;

private:
    struct Question;
    static void putQuestion(const std::shared_ptr<Question>& question);
    std::shared_ptr<Question> m_question; ///< shared with the thread that waits for the process
};

} // namespace orlen
