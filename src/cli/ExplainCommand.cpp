#include "app/AppTexts.h"
#include "app/ExplanationText.h"
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

#include <string>

namespace orlen {

namespace {

constexpr std::int64_t kLargeFile = 500'000'000;

void print(const Explanation& told)
{
    const Colours colours = Session::colours();
    std::string text = colours.styled(Style::bold, Format::shownPath(told.path)) + '\n';
    text += colours.styled(Style::dim,
                           told.exists ? Words::figures().bytes(told.size) : shown(AppTexts::kNotThere)) +
            "\n\n";
    const auto ratingText = [&](Rating rating) {
        return colours.styled(FindingTable::style(rating), shown(label(rating)));
    };
    for (const Message& sentence : ExplanationText::sentences(told, ratingText))
        text += shown(sentence) + '\n';
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
