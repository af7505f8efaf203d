#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

enum class StepState { pending, running, done };

struct ScanStep {
    std::string label;
    StepState state = StepState::pending;
    std::chrono::duration<double> elapsed{0}; ///< how long it ran; so far, while it runs

    friend bool operator==(const ScanStep&, const ScanStep&) = default;
};

/// What a scan is doing, shared by its workers and whoever shows it. Any thread; every call holds the lock
/// for one field access only.
class ScanProgress {
public:
    /// Replaces the steps by one pending step for each label.
    void setSteps(const std::vector<std::string>& labels);
    /// Sets the state of the step with exactly this label; a label that matches none is ignored.
    void set(std::string_view label, StepState state);
    /// Counts one item; at every 48th the path becomes `current`.
    void tick(std::string_view path);
    /// Counts `items` at once. When that passes a multiple of 48, `path(i)`, the path of the item that did so
    /// (the last one, counted from 0), becomes `current`; otherwise it is not called. Routines that look at
    /// very many files count by the bufferful.
    void tick(std::int64_t items, const std::function<std::string(std::int64_t)>& path);
    /// Sets `current` without counting.
    void show(std::string_view path);

    [[nodiscard]] std::int64_t files() const;
    [[nodiscard]] std::string current() const;
    [[nodiscard]] std::vector<ScanStep> steps() const;

private:
    using Clock = std::chrono::steady_clock;
    struct Step {
        ScanStep shown;
        Clock::time_point started;
    };

    mutable std::mutex m_lock;
    std::int64_t m_files = 0;
    std::string m_current;
    std::vector<Step> m_steps;
};

} // namespace orlen
