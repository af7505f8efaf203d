#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace orlen {

class AppModel;
class ScanProgress;
class Session;

/// Shared by the commands that start with a Smart Scan.
namespace SmartScan {

/// Adds `--large-mb`, checked so that the model accepts it.
void addThresholdOption(CLI::App& app, double& megabytes);

/// Scans with a live line and returns how long it took; nothing if it was cancelled.
[[nodiscard]] std::optional<std::chrono::duration<double>> run(Session& session, AppModel& model,
                                                               double thresholdMB);

/// The live line of a scan.
[[nodiscard]] std::string status(const ScanProgress& progress);

} // namespace SmartScan
} // namespace orlen
