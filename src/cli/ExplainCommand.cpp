#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/FindingTable.h"
#include "cli/JsonDocuments.h"
#include "cli/PathArgument.h"
#include "cli/SavedExclusions.h"
#include "model/Words.h"
#include "platform/text/PathText.h"
#include "scan/Explanation.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include <utility>
#include <vector>

namespace orlen {

namespace {

constexpr std::int64_t kLargeFile = 500'000'000;

/// "App caches, Safe: Browser cache, rebuilt as you browse." and what would move.
std::string offer(const Finding& finding, const std::string& path, const Colours& colours)
{
    const FileEntry& entry = finding.items.front();
    const Rating rating = finding.effectiveRating(entry);
    const Message why = entry.notes.empty() ? finding.reason : Format::displayable(noteOf(entry));
    std::string text =
        shown(Message{CliTexts::kOffer,
                      {{"finding", within(finding.title)},
                       {"rating", colours.styled(FindingTable::style(rating), shown(label(rating)))},
                       {"why", within(why)}}}) +
        '\n';
    if (entry.path != path)
        text += shown(Message{CliTexts::kMovesWith,
                              {{"path", Format::shownPath(entry.path)}, {"size", Bytes{entry.size}}}}) +
                '\n';
    return text;
}

/// Which line excludes the path. With findings, it leads over to what they would do otherwise.
Message exclusionText(const Exclusion& exclusion, bool isAll)
{
    std::vector<Message> sentences;
    if (exclusion.kind == Exclusion::Kind::path)
        sentences.push_back({CliTexts::kExcludedByPath, {{"path", Format::shownPath(exclusion.text)}}});
    else
        sentences.push_back({CliTexts::kExcludedByName, {{"name", Format::quoted(exclusion.text)}}});
    if (!isAll)
        sentences.emplace_back(CliTexts::kOtherwise);
    return Message::joined(std::move(sentences), Several::Joint::sentences);
}

void print(const Explanation& told)
{
    const Colours colours = Session::colours();
    std::string text = colours.styled(Style::bold, Format::shownPath(told.path)) + '\n';
    text += colours.styled(Style::dim,
                           told.exists ? Words::figures().bytes(told.size) : shown(CliTexts::kNotThere)) +
            "\n\n";
    if (told.protection != Protection::none)
        text += shown(Message{
                    CliTexts::kProtected,
                    {{"what", within(label(told.protection))}, {"why", within(reason(told.protection))}}}) +
                '\n';
    if (told.exclusion)
        text += shown(exclusionText(*told.exclusion, told.findings.empty())) + '\n';
    for (const Finding& finding : told.findings)
        text += offer(finding, told.path, colours);
    if (told.findings.empty() && told.protection == Protection::none && !told.exclusion)
        text += shown(CliTexts::kOfferedNowhere) + '\n';
    Session::print(text);
}

class ExplainCommand final : public Command {
public:
    ExplainCommand() : Command({"explain", CliTexts::kExplainSummary}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("PATH", m_argument, shown(CliTexts::kPathHelp))->required();
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const std::string path = PathArgument::absolute(m_argument);
        if (path.empty() || (wantsJson() && !PathText::isValidUtf8(path)))
            return session.refuse({CliTexts::kNoTextInDocument, {{"path", Format::quoted(m_argument)}}});
        Safety::refresh();
        const Exclusions exclusions = SavedExclusions::load(session);
        const auto told = Background::resultUnlessCancelled(
            session,
            [&] {
                return Message{CliTexts::kMeasuringFolder, {{"path", Format::shownPath(path)}}};
            },
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
