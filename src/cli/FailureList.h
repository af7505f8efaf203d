#pragma once

#include "model/CleanFailure.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orlen {

class Session;

/// What a clean-up or a restore left where it was.
namespace FailureList {

/// Prints each path with its reason to standard error, then one remedy per reason; nothing if there are no
/// failures. If the whole operation was refused, prints `notBegun` and the shared reason instead of the list.
void show(Session& session, const std::vector<CleanFailure>& failures,
          const std::optional<FailureReason>& refusal, std::string_view notBegun);

} // namespace FailureList
} // namespace orlen
