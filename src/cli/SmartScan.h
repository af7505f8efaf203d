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

/// What the commands that begin with a Smart Scan share.
namespace SmartScan {

/// `--large-mb`; the value is checked, so that the model takes it.
void addThresholdOption(CLI::App& app, double& megabytes);

/// Scans with a live line and returns how long that took; nothing when it was cancelled.
[[nodiscard]] std::optional<std::chrono::duration<double>> run(Session& session, AppModel& model,
                                                               double thresholdMB);

/// The live line of a scan.
[[nodiscard]] std::string status(const ScanProgress& progress);

} // namespace SmartScan
} // namespace orlen
