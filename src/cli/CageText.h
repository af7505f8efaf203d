#pragma once

#include "platform/images/CageReport.h"

#include <optional>
#include <string>

namespace orlen::Texts {

/// What keeps the recognizer in, one line each. Absent: it could not be asked.
[[nodiscard]] std::string cage(const std::optional<CageReport>& report);

} // namespace orlen::Texts
