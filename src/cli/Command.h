#pragma once

#include "cli/Session.h"
#include "model/Text.h"

#include <memory>
#include <vector>

namespace CLI {
class App;
}

namespace orlen {

/// One command of the command line.
class Command {
public:
    struct Description {
        const char* name;
        Text summary;
    };
    explicit Command(Description description) : m_description(description) {}
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    virtual ~Command() = default;

    [[nodiscard]] Description description() const { return m_description; }

    /// Adds this command's own options, which are set before `run` is called.
    virtual void addOptions(CLI::App& /*app*/) {}
    [[nodiscard]] virtual ExitStatus run(Session& session) = 0;

    /// Whether to print a JSON document instead of text.
    [[nodiscard]] bool& wantsJson() { return m_wantsJson; }

private:
    const Description m_description;
    bool m_wantsJson = false;
};

/// Each command lives in its own source file, and these are the only way to it.
std::unique_ptr<Command> makeScanCommand();
std::unique_ptr<Command> makeCleanCommand();
std::unique_ptr<Command> makeHistoryCommand();
std::unique_ptr<Command> makeRestoreCommand();
std::unique_ptr<Command> makeBreakdownCommand();
std::unique_ptr<Command> makePredictCommand();
std::unique_ptr<Command> makeGrewCommand();
std::unique_ptr<Command> makeAskCommand();
std::unique_ptr<Command> makeDuplicatesCommand();
std::unique_ptr<Command> makePhotosCommand();
std::unique_ptr<Command> makeMapCommand();
std::unique_ptr<Command> makeAppsCommand();
std::unique_ptr<Command> makeLeftoversCommand();
std::unique_ptr<Command> makeUninstallCommand();
std::unique_ptr<Command> makeStartupCommand();
std::unique_ptr<Command> makeExplainCommand();
std::unique_ptr<Command> makeExcludeCommand();
std::unique_ptr<Command> makeAdviceCommand();

} // namespace orlen
