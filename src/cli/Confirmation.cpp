#include "cli/Confirmation.h"

#include "cli/Texts.h"
#include "platform/process/Terminal.h"
#include "platform/text/PathText.h"

#include <string>

namespace orlen::Confirmation {

std::optional<ExitStatus> refusal(Session& session, Asking asking, std::string_view question)
{
    if (session.isInterrupted())
        return session.cancelled();
    if (asking == Asking::unneeded)
        return std::nullopt;
    if (!Terminal::isTerminal(Terminal::Stream::input))
        return session.refuse(Texts::kNoTerminal);
    session.note(std::string(question).append(" [y/N] "));
    const auto line = Terminal::readLine(session.interruptDescriptor());
    if (!line)
        session.note("\n");
    if (session.isInterrupted())
        return session.cancelled();
    const std::string answer = PathText::asciiLower(line.value_or(""));
    if (answer == "y" || answer == "yes")
        return std::nullopt;
    return session.refuse(Texts::kRefused);
}

} // namespace orlen::Confirmation
