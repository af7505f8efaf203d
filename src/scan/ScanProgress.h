#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>

namespace orlen {

/// The steps of a scan in the order in which they are shown.
enum class StepKind {
    cachesAndLogs,
    backups,
    developer,
    packageCaches,
    trashAndMail,
    languagePacks,
    downloads,
    largeAndOld,
    duplicates,
    photos,
};

inline constexpr std::size_t kScanSteps = 10;

/// The step's name on the screen.
[[nodiscard]] std::string_view label(StepKind step);

enum class StepState { pending, running, done };

struct ScanStep {
    StepKind kind = StepKind::cachesAndLogs;
    StepState state = StepState::pending;
    std::chrono::duration<double> elapsed{0}; ///< how long it ran; so far, while it runs

    friend bool operator==(const ScanStep&, const ScanStep&) = default;
};

/// What a scan is doing, shared by its workers and whoever shows it; all steps are pending at first. Any
/// thread; every call holds the lock for one field access only.
class ScanProgress {
public:
    ScanProgress();

    void set(StepKind step, StepState state);
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
    [[nodiscard]] std::array<ScanStep, kScanSteps> steps() const;

private:
    using Clock = std::chrono::steady_clock;
    struct Step {
        ScanStep shown;
        Clock::time_point started;
    };

    mutable std::mutex m_lock;
    std::int64_t m_files = 0;
    std::string m_current;
    std::array<Step, kScanSteps> m_steps; ///< by kind
};

} // namespace orlen
