#pragma once

#include "cli/Session.h"

#include <optional>

/// Asks before anything moves.
namespace orlen::Confirmation {

enum class Asking {
    onTerminal,
    unneeded, ///< --yes was given
};

/// Asks on the terminal; anything but yes, in English or in the person's language, means no, and so does
/// having no terminal. Returns nothing on yes, otherwise the exit status, with the reason already printed.
[[nodiscard]] std::optional<ExitStatus> refusal(Session& session, Asking asking, const Message& question);

} // namespace orlen::Confirmation
