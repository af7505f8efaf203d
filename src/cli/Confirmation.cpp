#include "cli/Confirmation.h"

#include "cli/Texts.h"
#include "platform/process/Terminal.h"
#include "platform/text/PathText.h"

#include <string>

namespace orlen::Confirmation {

namespace {

ExitStatus interrupted(Session& session)
{
    session.complain(Texts::kCancelled);
    return ExitStatus::interrupted;
}

} // namespace

std::optional<ExitStatus> refusal(Session& session, Asking asking, std::string_view question)
{
    if (session.isInterrupted())
        return interrupted(session);
    if (asking == Asking::unneeded)
        return std::nullopt;
    if (!Terminal::isTerminal(Terminal::Stream::input)) {
        session.complain(Texts::kNoTerminal);
        return ExitStatus::wrongCall;
    }
    session.note(std::string(question).append(" [y/N] "));
    const auto line = Terminal::readLine(session.interruptDescriptor());
    if (!line)
        session.note("\n");
    if (session.isInterrupted())
        return interrupted(session);
    const std::string answer = PathText::asciiLower(line.value_or(""));
    if (answer == "y" || answer == "yes")
        return std::nullopt;
    session.complain(Texts::kRefused);
    return ExitStatus::wrongCall;
}

} // namespace orlen::Confirmation
