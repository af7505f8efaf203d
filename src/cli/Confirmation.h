#pragma once

#include "cli/Session.h"

#include <optional>
#include <string_view>

/// The question before anything moves.
namespace orlen::Confirmation {

enum class Asking {
    onTerminal,
    unneeded, ///< the call said yes
};

/// Asks on the terminal; anything but a yes is a no, and without a terminal nobody is asked. Nothing on a
/// yes, else how the command ends, which has been said.
[[nodiscard]] std::optional<ExitStatus> refusal(Session& session, Asking asking, std::string_view question);

} // namespace orlen::Confirmation
