#pragma once

#include "model/Text.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
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
[[nodiscard]] Text label(StepKind step);

enum class StepState { pending, running, done };

struct ScanStep {
    StepKind kind = StepKind::cachesAndLogs;
    StepState state = StepState::pending;
    std::chrono::duration<double> elapsed{0}; ///< how long it ran; so far, while it runs

    friend bool operator==(const ScanStep&, const ScanStep&) = default;
};

/// How much a long step has to do and has done: photos to look at, or bytes of possible duplicates to
/// compare.
struct StepAmount {
    std::int64_t done = 0;
    std::int64_t all = 0; ///< 0: not known yet, or the step is short
    friend bool operator==(const StepAmount&, const StepAmount&) = default;
};

/// What a scan is doing, shared by its workers and whoever shows it. All steps start as pending. Any thread;
/// each call holds the lock for a single field access.
class ScanProgress {
public:
    ScanProgress();

    void set(StepKind step, StepState state);
    /// Counts one item; every 48th path becomes `current`.
    void tick(std::string_view path);
    /// Counts `items` at once, for routines that see a great many. If a multiple of 48 is passed, `path(i)`
    /// is called with the 0-based number of the last item to do so and becomes `current`.
    void tick(std::int64_t items, const std::function<std::string(std::int64_t)>& path);
    /// Sets `current` without counting.
    void show(std::string_view path);

    /// Starts to count what a step does.
    void expect(StepKind step, StepAmount amount);
    /// Never beyond what was expected.
    void advance(StepKind step, std::int64_t by);
    [[nodiscard]] StepAmount amount(StepKind step) const;
    /// How long the step will still take at its pace so far; nothing while that cannot be said.
    [[nodiscard]] std::optional<std::chrono::duration<double>> timeLeft(StepKind step) const;
    /// How much of the scan is done, 0 to 1: each step counts alike, and a long one by what it has done.
    [[nodiscard]] double share() const;

    [[nodiscard]] std::int64_t files() const;
    [[nodiscard]] std::string current() const;
    [[nodiscard]] std::array<ScanStep, kScanSteps> steps() const;

private:
    using Clock = std::chrono::steady_clock;
    struct Step {
        ScanStep shown;
        Clock::time_point started;
        StepAmount amount;
        std::int64_t doneBefore = 0; ///< of the amount, when counting began
        Clock::time_point counted;   ///< since when
    };
    [[nodiscard]] Step& step(StepKind kind) { return m_steps[static_cast<std::size_t>(kind)]; }
    [[nodiscard]] const Step& step(StepKind kind) const { return m_steps[static_cast<std::size_t>(kind)]; }

    mutable std::mutex m_lock;
    std::int64_t m_files = 0;
    std::string m_current;
    std::array<Step, kScanSteps> m_steps; ///< by kind
};

} // namespace orlen
