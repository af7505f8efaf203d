#pragma once

#include "model/CleanFailure.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orlen {

class Session;

/// What a clean-up or a restore left where it was.
namespace FailureList {

/// Writes each path with its reason, and once for each reason what can be done about it, to standard error;
/// nothing when there are no failures. With a refusal, which all of them share, its reason behind the
/// sentence `notBegun` stands for the list.
void show(Session& session, const std::vector<CleanFailure>& failures,
          const std::optional<FailureReason>& refusal, std::string_view notBegun);

} // namespace FailureList
} // namespace orlen
