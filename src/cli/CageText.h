#pragma once

#include "platform/images/CageReport.h"

#include <optional>
#include <string>

namespace orlen::CageText {

/// The walls around the recognizer as the person reads them, one per line. No report means that it could not
/// be asked.
[[nodiscard]] std::string of(const std::optional<CageReport>& report);

} // namespace orlen::CageText
