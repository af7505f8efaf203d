#pragma once

#include "platform/images/CageReport.h"

#include <optional>
#include <string>

namespace orlen::Texts {

/// The walls around the recognizer, one per line. No report means that it could not be asked.
[[nodiscard]] std::string cage(const std::optional<CageReport>& report);

} // namespace orlen::Texts
