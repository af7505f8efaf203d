#include "cli/Confirmation.h"

#include "cli/CliTexts.h"
#include "model/Words.h"
#include "platform/process/Terminal.h"
#include "platform/text/LanguageTools.h"

#include <sstream>
#include <string>

namespace orlen::Confirmation {

namespace {

bool isYes(const std::string& line)
{
    const std::string answer = LanguageTools::lowerCase(line);
    if (answer == "y" || answer == "yes")
        return true;
    std::istringstream words(shown(CliTexts::kYesWords));
    for (std::string word; words >> word;) {
        if (answer == LanguageTools::lowerCase(word))
            return true;
    }
    return false;
}

} // namespace

std::optional<ExitStatus> refusal(Session& session, Asking asking, const Message& question)
{
    if (session.isInterrupted())
        return session.cancelled();
    if (asking == Asking::unneeded)
        return std::nullopt;
    if (!Terminal::isTerminal(Terminal::Stream::input))
        return session.refuse(CliTexts::kNoTerminal);
    session.note(shown(question) + ' ' + shown(CliTexts::kYesOrNo) + ' ');
    const auto line = Terminal::readLine(session.interruptDescriptor());
    if (!line)
        session.note("\n");
    if (session.isInterrupted())
        return session.cancelled();
    if (isYes(line.value_or("")))
        return std::nullopt;
    return session.refuse(CliTexts::kRefused);
}

} // namespace orlen::Confirmation
