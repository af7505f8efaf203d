#include "app/AppModel.h"
#include "app/Format.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "platform/text/ByteCount.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace orlen {

namespace {

/// Growth with its sign, since `byteCount` takes no negative sizes.
std::string perDay(double bytes)
{
    constexpr double kMost = 9e18;
    const auto size = static_cast<std::int64_t>(std::min(std::abs(bytes), kMost));
    const char* sign = size == 0 ? "" : bytes < 0 ? "-" : "+";
    return sign + byteCount(size) + " a day";
}

void printPrediction(const Prediction& prediction, std::size_t snapshots)
{
    const Colours colours = Session::colours();
    std::string text = colours.styled(Style::bold, prediction.headline) + '\n' + prediction.detail + '\n';
    if (!prediction.perCategory.empty()) {
        Table table({{"Category", Table::Kind::text}, {"Growth", Table::Kind::number}});
        for (const auto& [category, rate] : prediction.perCategory)
            table.addRow({{std::string(label(category))}, {perDay(rate)}});
        text += '\n' + table.text(colours, Session::width());
    }
    const std::string count = Format::counted(static_cast<std::int64_t>(snapshots), "snapshot");
    Session::print(text + '\n' + colours.styled(Style::dim, count + " of past scans") + '\n');
}

class PredictCommand final : public Command {
public:
    PredictCommand() : Command({"predict", "Forecast the growth from the snapshots of past scans"}) {}

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
