#pragma once

#include "model/CleanFailure.h"

/// Explains the errno of a move to the user. Pure; any thread.
namespace orlen::FailureReasons {

/// For an error of `Trash::moveIn`, or of writing one of the program's own files.
[[nodiscard]] FailureReason ofCleaning(int error);
/// For an error of `Trash::moveBack`.
[[nodiscard]] FailureReason ofRestoring(int error);

} // namespace orlen::FailureReasons
