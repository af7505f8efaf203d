#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/Background.h"
#include "cli/Command.h"
#include "cli/JsonDocuments.h"
#include "cli/Table.h"
#include "cli/Texts.h"
#include "platform/values/CheckedSum.h"
#include "tools/advice/Advice.h"

#include <nlohmann/json.hpp>

#include <chrono>

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
    return all.sizeText().append(Texts::kBeyondOrlen);
}

void printAdvice(const std::vector<AdviceItem>& advice)
{
    if (advice.empty()) {
        Session::print(std::string(Texts::kNoAdvice) + '\n');
        return;
    }
    using Kind = Table::Kind;
    Table table({{"What", Kind::text}, {"Size", Kind::number}, {"Command", Kind::text}});
    for (const AdviceItem& item : advice)
        table.addRow({{item.title, Style::bold}, {item.sizeText()}, {item.command}});
    const Colours colours = Session::colours();
    std::string text =
        colours.styled(Style::bold, headingOf(advice)) + "\n\n" + table.text(colours, Session::width());
    for (const AdviceItem& item : advice) {
        text += '\n' + colours.styled(Style::bold, item.title) +
                colours.styled(Style::dim, "  " + Format::shownPath(item.places.front())) + '\n' + item.text;
        text += item.isOnHomeDisk ? std::string("\n") : ' ' + std::string(Texts::kOtherDisk) + '\n';
    }
    Session::print(text + '\n' + colours.styled(Style::dim, Texts::kAdviceIsForYou) + '\n');
}

class AdviceCommand final : public Command {
public:
    AdviceCommand()
        : Command({"advice", "Show what fills the disk outside Orlen's reach, and the command that frees it"})
    {
    }

    [[nodiscard]] ExitStatus run(Session& session) override
    {
        Safety::refresh();
        const auto advice = Background::resultUnlessCancelled(
            session, [] { return std::string(Texts::kLookingForAdvice); },
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
