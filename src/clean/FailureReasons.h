#pragma once

#include "model/CleanFailure.h"

/// What the errno of a move means to the person whose item stayed. Pure; any thread.
namespace orlen::FailureReasons {

/// The answer of `Trash::moveIn`, or of a file of the program's own that could not be written.
[[nodiscard]] FailureReason ofCleaning(int error);
/// The answer of `Trash::moveBack`.
[[nodiscard]] FailureReason ofRestoring(int error);

} // namespace orlen::FailureReasons
