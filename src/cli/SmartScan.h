#pragma once

#include <chrono>
#include <optional>

namespace CLI {
class App;
}

namespace orlen {

class AppModel;
class Session;

/// Shared by the commands that start with a Smart Scan.
namespace SmartScan {

/// Adds `--large-mb`, checked so that the model accepts it.
void addThresholdOption(CLI::App& app, double& megabytes);

/// Scans with a live line and returns how long it took; nothing if it was cancelled.
[[nodiscard]] std::optional<std::chrono::duration<double>> run(Session& session, AppModel& model,
                                                               double thresholdMB);

} // namespace SmartScan
} // namespace orlen
