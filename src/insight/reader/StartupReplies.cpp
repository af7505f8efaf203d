#include "insight/reader/StartupReplies.h"

#include "insight/AskText.h"
#include "insight/InsightTexts.h"
#include "insight/InsightTextsPrograms.h"
#include "insight/reader/AskedName.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

Message startupLine(const AskContext& context, bool isEnabled, const Text& text)
{
    Several names{{}, Several::Joint::commas};
    for (const KnownStartupItem& item : context.startupItems.value_or(std::vector<KnownStartupItem>())) {
        if (item.isEnabled == isEnabled)
            names.messages.push_back(Message::verbatim(PathText::forDisplay(item.name)));
    }
    if (names.messages.empty())
        return {};
    return {text, {{"count", std::ssize(names.messages)}, {"names", std::move(names)}}};
}

} // namespace

Answer startup(const AskContext& context)
{
    return {AskText::lines({startupLine(context, true, InsightTexts::kStartingItems),
                            startupLine(context, false, InsightTexts::kStoppedItems),
                            InsightTexts::kStartupScreen}),
            {}};
}

std::optional<Answer> startupOf(const Question& question, const AskContext& context)
{
    const Subject* const subject = question.subject();
    const std::string asked = nameIn(question).name;
    // How much something takes is another question.
    if (subject == nullptr || subject->id != SubjectID::startup || question.senses.has(Sense::howBig) ||
        !context.startupItems || asked.empty())
        return std::nullopt;
    const std::string wanted = " " + plainLetters(asked) + " ";
    std::vector<Message> lines;
    for (const KnownStartupItem& item : *context.startupItems) {
        if ((" " + plainLetters(item.name) + " ").find(wanted) != std::string::npos)
            lines.push_back({item.isEnabled ? InsightTexts::kStartsAtLogin : InsightTexts::kIsSwitchedOff,
                             {{"name", PathText::forDisplay(item.name)}}});
    }
    if (lines.empty())
        return Answer{
            AskText::sentences({Message{InsightTexts::kStartsNot, {{"name", PathText::forDisplay(asked)}}},
                                InsightTexts::kStartupScreen}),
            {}};
    lines.emplace_back(InsightTexts::kStartupSwitch);
    return Answer{AskText::lines(std::move(lines)), {}};
}

} // namespace orlen::AskReader
