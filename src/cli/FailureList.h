#pragma once

#include "model/CleanFailure.h"

#include <optional>
#include <vector>

namespace orlen {

class Session;

/// What a clean-up or a restore left where it was.
namespace FailureList {

/// Prints each path with its reason to standard error, then one remedy per reason; nothing if there are no
/// failures. If the whole operation was refused, prints `notBegun` with the {reason} instead of the list.
void show(Session& session, const std::vector<CleanFailure>& failures,
          const std::optional<FailureReason>& refusal, const Text& notBegun);

} // namespace FailureList
} // namespace orlen
