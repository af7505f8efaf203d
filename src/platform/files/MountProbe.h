#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace orlen {

/// Finds out whether a folder answers without risking a hang: a call on a file system whose server is gone
/// never returns, and may make its process unkillable. So a separate process makes the call. Each probe asks
/// only once. Any thread.
class MountProbe {
public:
    /// Counted from when the question is asked; a folder that has not answered by then counts as silent.
    static constexpr std::chrono::milliseconds kPatience{2000};

    explicit MountProbe(std::string folder);

    /// Asks without waiting, so that several mounts can be probed at the same time.
    void ask();
    /// Asks, and waits for the answer until the patience is over; later calls do not wait. An error counts as
    /// an answer. May turn from false to true if an answer arrives late. Any number of threads may wait.
    [[nodiscard]] bool answers();
    /// So far, without asking or waiting.
    [[nodiscard]] bool hasAnswered() const;
    [[nodiscard]] bool isAsked() const;

private:
    struct Question;
    static void putQuestion(const std::shared_ptr<Question>& question);
    std::shared_ptr<Question> m_question; ///< shared with the thread that waits for the process
};

} // namespace orlen
