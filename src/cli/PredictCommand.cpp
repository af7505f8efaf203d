#include "app/AppModel.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace orlen {

namespace {

/// Growth with its sign in the text, since a size is never negative.
Message perDay(double bytes)
{
    constexpr double kMost = 9e18;
    const auto size = static_cast<std::int64_t>(std::min(std::abs(bytes), kMost));
    const Text& text = size == 0   ? CliTexts::kStaysTheSame
                       : bytes < 0 ? CliTexts::kShrinks
                                   : CliTexts::kGrows;
    return {text, {{"size", Bytes{size}}}};
}

void printPrediction(const Prediction& prediction, std::size_t snapshots)
{
    const Colours colours = Session::colours();
    std::string text =
        colours.styled(Style::bold, shown(prediction.headline)) + '\n' + shown(prediction.detail) + '\n';
    if (!prediction.perCategory.empty()) {
        Table table({{shown(CliTexts::kCategoryHeading), Table::Kind::text},
                     {shown(CliTexts::kGrowthHeading), Table::Kind::number}});
        for (const auto& [category, rate] : prediction.perCategory)
            table.addRow({{shown(label(category))}, {shown(perDay(rate))}});
        text += '\n' + table.text(colours, Session::width());
    }
    const Message count{CliTexts::kSnapshots, {{"count", static_cast<std::int64_t>(snapshots)}}};
    Session::print(text + '\n' + colours.styled(Style::dim, shown(count)) + '\n');
}

class PredictCommand final : public Command {
public:
    PredictCommand() : Command({"predict", CliTexts::kPredictSummary}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        const AppModel model({AppModel::Startup::filesOnly, AppModel::Access::reader});
        session.complain(model.notices());
        const Prediction prediction = model.storage()->prediction();
        if (wantsJson())
            Session::printDocument(
                JsonDocuments::prediction(prediction, model.storage()->snapshots().size()));
        else
            printPrediction(prediction, model.storage()->snapshots().size());
        return ExitStatus::done;
    }
};

} // namespace

std::unique_ptr<Command> makePredictCommand()
{
    return std::make_unique<PredictCommand>();
}

} // namespace orlen
