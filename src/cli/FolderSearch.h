#pragma once

#include "clean/Exclusions.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/SavedExclusions.h"
#include "model/Words.h"
#include "scan/ScanProgress.h"
#include "scan/walk/Walk.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// Shared by the commands that search folders. Main thread unless noted.
namespace orlen::FolderSearch {

/// Resolves the folders given on the command line. Prints a complaint and returns nothing if one is
/// unreadable or protected. Blocks on the disk.
[[nodiscard]] std::optional<std::vector<std::string>> checked(Session& session,
                                                              const std::vector<std::string>& arguments);

/// Walks the folders, or the home folder if none are given. Any thread.
[[nodiscard]] Walk::Found walked(const std::vector<std::string>& folders, ScanProgress& progress,
                                 const std::stop_token& stop);

/// What a search is doing: files examined, photos or bytes looked at with the time left, and the current
/// path.
[[nodiscard]] Message status(const ScanProgress& progress);

} // namespace orlen::FolderSearch

namespace orlen {

/// A command that searches the folders given on the command line, or in the home folder if none are given.
template <typename Found>
class FolderCommand : public Command {
public:
    FolderCommand(Description description, const Text& argumentHelp)
        : Command(description), m_argumentHelp(argumentHelp)
    {
    }

    void addOptions(CLI::App& app) override { app.add_option("DIR", m_arguments, shown(m_argumentHelp)); }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        Safety::refresh();
        auto folders = FolderSearch::checked(session, m_arguments);
        if (!folders || !takeOptions(session, *folders))
            return ExitStatus::wrongCall;
        const Exclusions exclusions = SavedExclusions::load(session);
        ScanProgress progress;
        const std::optional<Found> found = Background::resultUnlessCancelled(
            session, [&] { return FolderSearch::status(progress); },
            [&](const std::stop_token& stop) { return search(*folders, exclusions, progress, stop); });
        if (!found)
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(document(*found));
        else
            print(*found);
        return ended(session);
    }

private:
    /// Checks the further options, and adds folders to look into unless there are none. False after a
    /// complaint.
    [[nodiscard]] virtual bool takeOptions(Session& /*session*/, std::vector<std::string>& /*folders*/)
    {
        return true;
    }
    /// Runs on a worker. What is excluded is not among what is found.
    [[nodiscard]] virtual Found search(const std::vector<std::string>& folders, const Exclusions& exclusions,
                                       ScanProgress& progress, const std::stop_token& stop) = 0;
    [[nodiscard]] virtual JsonDocuments::Json document(const Found& found) const = 0;
    virtual void print(const Found& found) const = 0;
    /// What is said after the result.
    [[nodiscard]] virtual ExitStatus ended(Session& /*session*/) const { return ExitStatus::done; }

    const Text m_argumentHelp;
    std::vector<std::string> m_arguments;
};

} // namespace orlen
