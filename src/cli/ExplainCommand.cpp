#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/Command.h"
#include "cli/FindingTable.h"
#include "cli/JsonDocuments.h"
#include "cli/PathArgument.h"
#include "cli/SavedExclusions.h"
#include "cli/Texts.h"
#include "platform/text/ByteCount.h"
#include "platform/text/PathText.h"
#include "scan/Explanation.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace orlen {

namespace {

constexpr std::int64_t kLargeFile = 500'000'000;

/// "App caches, Safe: Browser cache, rebuilt as you browse." and what would move.
std::string offer(const Finding& finding, const std::string& path, const Colours& colours)
{
    const FileEntry& entry = finding.items.front();
    const Rating rating = finding.effectiveRating(entry);
    std::string text = finding.title + ", " +
                       colours.styled(FindingTable::style(rating), std::string(label(rating))) + ": " +
                       entry.note.value_or(finding.reason) + '\n';
    if (entry.path != path)
        text += "Moves with " + Format::shownPath(entry.path) + ", " + byteCount(entry.size) + ".\n";
    return text;
}

/// Which line excludes the path. With findings, it leads over to what they would do otherwise.
std::string exclusionText(const Exclusion& exclusion, bool isAll)
{
    const bool isPath = exclusion.kind == Exclusion::Kind::path;
    return std::string(Texts::kExcludedBy) + (isPath ? "" : "the name ") +
           (isPath ? Format::shownPath(exclusion.text) : Format::quoted(exclusion.text)) +
           std::string(isAll ? Texts::kNeitherOfferedNorMoved : Texts::kOfferedOtherwise) + '\n';
}

void print(const Explanation& told)
{
    const Colours colours = Session::colours();
    std::string text = colours.styled(Style::bold, Format::shownPath(told.path)) + '\n';
    text += colours.styled(Style::dim, told.exists ? byteCount(told.size) : std::string(Texts::kNotThere)) +
            "\n\n";
    if (told.protection != Protection::none)
        text += "Protected, " + std::string(label(told.protection)) + ": " +
                std::string(reason(told.protection)) + '\n';
    if (told.exclusion)
        text += exclusionText(*told.exclusion, told.findings.empty());
    for (const Finding& finding : told.findings)
        text += offer(finding, told.path, colours);
    if (told.findings.empty() && told.protection == Protection::none && !told.exclusion)
        text += std::string(Texts::kOfferedNowhere) + '\n';
    Session::print(text);
}

class ExplainCommand final : public Command {
public:
    ExplainCommand() : Command({"explain", "Say what Orlen would do with a path, and why"}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("PATH", m_argument, "File or folder")->required();
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const std::string path = PathArgument::absolute(m_argument);
        if (path.empty() || (wantsJson() && !PathText::isValidUtf8(path)))
            return session.refuse(Format::quoted(m_argument).append(Texts::kNoTextInDocument));
        Safety::refresh();
        const Exclusions exclusions = SavedExclusions::load(session);
        const auto told = Background::resultUnlessCancelled(
            session, [&] { return std::string(Texts::kMeasuringFolder) + Format::shownPath(path); },
            [&](const std::stop_token& stop) { return explain(path, kLargeFile, exclusions, stop); });
        if (!told)
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(JsonDocuments::explanation(*told));
        else
            print(*told);
        return ExitStatus::done;
    }

private:
    std::string m_argument;
};

} // namespace

std::unique_ptr<Command> makeExplainCommand()
{
    return std::make_unique<ExplainCommand>();
}

} // namespace orlen
