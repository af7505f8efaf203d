#include "cli/CommandLine.h"

#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/CageText.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/HelpFormatter.h"
#include "model/Words.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/images/ImageWorkers.h"
#include "platform/text/PathText.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace orlen::CommandLine {

namespace {

const std::string kVersion = std::string("orlen ") + ORLEN_VERSION;

struct Registered {
    std::unique_ptr<Command> command;
    CLI::App* parser; ///< owned by the main parser
};

std::vector<std::unique_ptr<Command>> allCommands()
{
    std::vector<std::unique_ptr<Command>> commands;
    for (const auto make :
         {makeScanCommand, makeCleanCommand, makeHistoryCommand, makeRestoreCommand, makeBreakdownCommand,
          makePredictCommand, makeGrewCommand, makeAskCommand, makeDuplicatesCommand, makePhotosCommand,
          makeMapCommand, makeAppsCommand, makeLeftoversCommand, makeUninstallCommand, makeStartupCommand,
          makeExplainCommand, makeExcludeCommand, makeAdviceCommand})
        commands.push_back(make());
    return commands;
}

void addCommonOptions(CLI::App& parser)
{
    parser.set_help_flag("-h,--help", shown(CliTexts::kPrintHelp));
    parser.set_version_flag("--version", kVersion, shown(CliTexts::kPrintVersion));
}

std::vector<Registered> registerCommands(CLI::App& parser)
{
    std::vector<Registered> registered;
    for (std::unique_ptr<Command>& command : allCommands()) {
        const auto [name, summary] = command->description();
        CLI::App* own = parser.add_subcommand(name, shown(summary))->group(shown(CliTexts::kSubcommands));
        addCommonOptions(*own);
        own->add_flag("--json", command->wantsJson(), shown(CliTexts::kPrintJson));
        command->addOptions(*own);
        registered.push_back({std::move(command), own});
    }
    return registered;
}

ExitStatus wrongCall(Session& session, const CLI::App& parser, const std::string& error)
{
    const std::vector<std::string> unknown = parser.remaining();
    if (parser.get_subcommands().empty() && !unknown.empty())
        session.complain({CliTexts::kNoSuchWord, {{"word", Format::quoted(unknown.front())}}});
    else
        session.complain(Message::verbatim(error));
    session.note(shown(CliTexts::kTryHelp) + '\n');
    return ExitStatus::wrongCall;
}

void tellOfSilence(Session& session)
{
    for (const Reachability::LeftOut& mount : Reachability::leftOut()) {
        if (mount.reason == Reachability::LeftOut::Reason::silent)
            session.complain({CliTexts::kSilentMount,
                              {{"path", Format::shownPath(Places::current().normalized(mount.point))}}});
    }
}

ExitStatus runCommand(Session& session, const CLI::App& parser, const std::vector<Registered>& commands)
{
    for (const Registered& candidate : commands) {
        if (!candidate.parser->parsed())
            continue;
        if (Places::current().isHomeSilent)
            return session.refuse(AppTexts::kSilentHome);
        const ExitStatus status = candidate.command->run(session);
        tellOfSilence(session);
        return status;
    }
    session.complain(CliTexts::kNoWindow);
    session.note('\n' + parser.help());
    return ExitStatus::wrongCall;
}

} // namespace

int run(int argc, char** argv)
{
    CLI::App parser{shown(CliTexts::kDescription), "orlen"};
    parser.formatter(std::make_shared<HelpFormatter>()); // before the commands, which inherit it
    addCommonOptions(parser);
    const std::string verboseHelp = shown(CliTexts::kVerboseHelp);
    const CLI::Option* const verbose =
        parser.add_flag("--verbose", verboseHelp)->needs(parser.get_version_ptr());
    parser.require_subcommand(0, 1);
    parser.footer(shown(CliTexts::kWithoutCommand));
    const std::vector<Registered> commands = registerCommands(parser);
    Session session;
    try {
        parser.parse(argc, argv);
    } catch (const CLI::CallForVersion& version) {
        const int status = parser.exit(version);
        if (verbose->count() > 0)
            Session::print(CageText::of(CageReport::ask(ImageWorkers::recognizer())));
        return status;
    } catch (const CLI::Success& success) {
        return parser.exit(success); // help
    } catch (const CLI::ValidationError& error) {
        // In words of our own, which are safe to show and may hold marks of direction.
        return static_cast<int>(wrongCall(session, parser, error.what()));
    } catch (const CLI::ParseError& error) {
        return static_cast<int>(wrongCall(session, parser, PathText::forDisplay(error.what())));
    }
    return static_cast<int>(runCommand(session, parser, commands));
}

} // namespace orlen::CommandLine
