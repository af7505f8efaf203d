#include "cli/CommandLine.h"

#include "app/AppTexts.h"
#include "app/Format.h"
#include "cli/CageText.h"
#include "cli/Command.h"
#include "cli/Texts.h"
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

const std::string kVerboseHelp = "With --version: print what keeps the recognizer of pictures in";
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
          makePredictCommand, makeAskCommand, makeDuplicatesCommand, makePhotosCommand, makeMapCommand,
          makeAppsCommand, makeLeftoversCommand, makeUninstallCommand, makeStartupCommand, makeExplainCommand,
          makeExcludeCommand, makeAdviceCommand})
        commands.push_back(make());
    return commands;
}

void addCommonOptions(CLI::App& parser)
{
    parser.set_help_flag("-h,--help", "Print this help and exit");
    parser.set_version_flag("--version", kVersion, "Print the version and exit");
}

std::vector<Registered> registerCommands(CLI::App& parser)
{
    std::vector<Registered> registered;
    for (std::unique_ptr<Command>& command : allCommands()) {
        const auto [name, summary] = command->description();
        CLI::App* own = parser.add_subcommand(name, summary);
        addCommonOptions(*own);
        own->add_flag("--json", command->wantsJson(), "Print one JSON document and nothing else");
        command->addOptions(*own);
        registered.push_back({std::move(command), own});
    }
    return registered;
}

ExitStatus wrongCall(Session& session, const CLI::App& parser, const CLI::ParseError& error)
{
    const std::vector<std::string> unknown = parser.remaining();
    if (parser.get_subcommands().empty() && !unknown.empty())
        session.complain("there is no command or option " + Format::quoted(unknown.front()) + '.');
    else
        session.complain(PathText::forDisplay(error.what()));
    session.note("Try `orlen --help`.\n");
    return ExitStatus::wrongCall;
}

void tellOfSilence(Session& session)
{
    for (const Reachability::LeftOut& mount : Reachability::leftOut()) {
        if (mount.reason == Reachability::LeftOut::Reason::silent)
            session.complain(
                Format::shownPath(Places::current().normalized(mount.point)).append(Texts::kIsSilent));
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
    session.complain(Texts::kNoWindow);
    session.note('\n' + parser.help());
    return ExitStatus::wrongCall;
}

} // namespace

int run(int argc, char** argv)
{
    CLI::App parser{std::string(Texts::kDescription), "orlen"};
    addCommonOptions(parser);
    const CLI::Option* const verbose =
        parser.add_flag("--verbose", kVerboseHelp)->needs(parser.get_version_ptr());
    parser.require_subcommand(0, 1);
    parser.footer(std::string(Texts::kWithoutCommand));
    const std::vector<Registered> commands = registerCommands(parser);
    Session session;
    try {
        parser.parse(argc, argv);
    } catch (const CLI::CallForVersion& version) {
        const int status = parser.exit(version);
        if (verbose->count() > 0)
            Session::print(Texts::cage(CageReport::ask(ImageWorkers::recognizer())));
        return status;
    } catch (const CLI::Success& success) {
        return parser.exit(success); // help
    } catch (const CLI::ParseError& error) {
        return static_cast<int>(wrongCall(session, parser, error));
    }
    return static_cast<int>(runCommand(session, parser, commands));
}

} // namespace orlen::CommandLine
