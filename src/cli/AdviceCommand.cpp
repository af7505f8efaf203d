#include "app/AppTexts.h"
#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/CliTexts.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "model/Words.h"
#include "platform/values/CheckedSum.h"
#include "tools/advice/Advice.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <utility>

namespace orlen {

namespace {

std::string headingOf(const std::vector<AdviceItem>& advice)
{
    AdviceItem all;
    for (const AdviceItem& item : advice) {
        all.size = cappedAdd(all.size, item.size);
        if (item.known != AdviceItem::Known::all)
            all.known = AdviceItem::Known::part;
    }
    return shown(Message{CliTexts::kBeyondOrlen, {{"size", within(all.sizeText())}}});
}

Message explanationOf(const AdviceItem& item)
{
    std::vector<Message> sentences{item.text};
    if (!item.isOnHomeDisk)
        sentences.emplace_back(AppTexts::kOnOtherDisk);
    return Message::joined(std::move(sentences), Several::Joint::sentences);
}

void printAdvice(const std::vector<AdviceItem>& advice)
{
    if (advice.empty()) {
        Session::print(CliTexts::kNoAdvice);
        return;
    }
    using Kind = Table::Kind;
    Table table({{shown(CliTexts::kWhatHeading), Kind::text},
                 {shown(CliTexts::kSizeHeading), Kind::number},
                 {shown(CliTexts::kCommandHeading), Kind::text}});
    for (const AdviceItem& item : advice)
        table.addRow({{shown(item.title), Style::bold}, {shown(item.sizeText())}, {item.command}});
    const Colours colours = Session::colours();
    std::string text =
        colours.styled(Style::bold, headingOf(advice)) + "\n\n" + table.text(colours, Session::width());
    for (const AdviceItem& item : advice) {
        text += '\n' + colours.styled(Style::bold, shown(item.title)) +
                colours.styled(Style::dim, "  " + Format::shownPath(item.places.front())) + '\n' +
                shown(explanationOf(item)) + '\n';
    }
    Session::print(text + '\n' + colours.styled(Style::dim, shown(CliTexts::kAdviceIsForYou)) + '\n');
}

class AdviceCommand final : public Command {
public:
    AdviceCommand() : Command({"advice", CliTexts::kAdviceSummary}) {}

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        Safety::refresh();
        const auto advice = Background::resultUnlessCancelled(
            session, [] { return CliTexts::kLookingForAdvice; },
            [](const std::stop_token& stop) {
                return Advice::collect(std::chrono::system_clock::now(), stop);
            });
        if (!advice)
            return session.cancelled();
        if (wantsJson())
            Session::printDocument(JsonDocuments::advice(*advice));
        else
            printAdvice(*advice);
        return ExitStatus::done;
    }
};

} // namespace

std::unique_ptr<Command> makeAdviceCommand()
{
    return std::make_unique<AdviceCommand>();
}

} // namespace orlen
