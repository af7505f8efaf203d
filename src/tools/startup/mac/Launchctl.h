#pragma once

#include "platform/process/ChildProcess.h"

#include <optional>
#include <string>
#include <vector>

/// The tool that switches launch agents. Blocks on a child process; any thread.
namespace orlen::Launchctl {

/// Nothing if the tool does not exist; else as ChildProcess::run.
[[nodiscard]] std::optional<ChildProcess::Outcome> call(const std::vector<std::string>& arguments);

} // namespace orlen::Launchctl
