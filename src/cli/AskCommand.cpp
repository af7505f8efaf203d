#include "app/AppModel.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/ItemList.h"
#include "cli/JsonDocuments.h"
#include "cli/SmartScan.h"
#include "insight/AskEngine.h"
#include "model/Words.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace orlen {

namespace {

std::string suggestions()
{
    std::string text = shown(CliTexts::kQuestionsToBegin);
    for (const Text& question : AskEngine::kSuggestions)
        text.append("\n  ").append(shown(question));
    return text;
}

void printAnswer(const Answer& answer)
{
    const std::string introduction = shown(AskEngine::introduction());
    Session::print(shown(answer.text) + "\n\n" + Session::colours().styled(Style::dim, introduction) + '\n');
}

/// Reads what the question may be about beside the scan; false if Ctrl-C was pressed.
bool readMore(Session& session, AppModel& model, const std::string& question)
{
    const AskContext scan = model.askContext();
    const bool needsPrograms = AskEngine::needsPrograms(question, scan);
    const bool needsHome = AskEngine::needsHome(question, scan);
    if (needsPrograms)
        model.programs()->load();
    if (needsHome)
        model.homeContents()->load();
    const auto isThere = [&] {
        return (!needsPrograms || model.programs()->apps().has_value()) &&
               (!needsHome || model.homeContents()->files() != nullptr);
    };
    bool isStopped = false;
    session.run({[&] { return isStopped || isThere(); }, [&] { isStopped = true; },
                 [&] { return needsPrograms ? CliTexts::kMeasuringApps : CliTexts::kMeasuring; }});
    return !isStopped;
}

class AskCommand final : public Command {
public:
    AskCommand() : Command({"ask", CliTexts::kAskSummary}) {}

    void addOptions(CLI::App& app) override
    {
        app.add_option("question", m_question, shown(CliTexts::kQuestionHelp))
            ->type_name("QUESTION")
            ->required();
        SmartScan::addThresholdOption(app, m_thresholdMB);
        app.footer(suggestions());
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        // A question must not add a snapshot to the forecast, so this only reads.
        AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        if (!SmartScan::run(session, model, m_thresholdMB))
            return ExitStatus::interrupted;
        if (!readMore(session, model, m_question))
            return session.cancelled();
        const Answer answer = AskEngine::answer(m_question, model.askContext());
        if (wantsJson())
            Session::printDocument(JsonDocuments::answer(answer));
        else
            printAnswer(answer);
        if (!wantsJson() && model.results()->selectOnly(answer.proposal))
            ItemList::toPropose(model.results()->scanPlan()).show(session);
        return ExitStatus::done;
    }

private:
    std::string m_question;
    double m_thresholdMB = 500;
};

} // namespace

std::unique_ptr<Command> makeAskCommand()
{
    return std::make_unique<AskCommand>();
}

} // namespace orlen
