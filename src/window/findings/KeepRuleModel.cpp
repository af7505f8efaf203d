#include "window/findings/KeepRuleModel.h"

#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"

#include <array>

namespace orlen {

namespace {

// In the order of KeepRule::Order.
constexpr std::array<Text, 4> kOrders{WindowTexts::kKeepUsual, WindowTexts::kKeepNewest,
                                      WindowTexts::kKeepOldest, WindowTexts::kKeepShortest};

} // namespace

KeepRuleModel::KeepRuleModel(AppModel& app) : m_app(app)
{
    connect(m_app.results(), &Results::keepRuleChanged, this, &KeepRuleModel::changed);
}

QStringList KeepRuleModel::choices() const
{
    QStringList texts;
    for (const Text& order : kOrders)
        texts << DisplayText::text(order);
    if (const std::string& folder = m_app.results()->keepRule().folder; !folder.empty())
        texts << DisplayText::text(
            Message(WindowTexts::kKeepIn, {{"folder", std::string(PathText::lastComponent(folder))}}));
    return texts;
}

int KeepRuleModel::current() const
{
    const KeepRule& rule = m_app.results()->keepRule();
    return static_cast<int>(rule.folder.empty() ? static_cast<std::size_t>(rule.order) : kOrders.size());
}

void KeepRuleModel::setCurrent(int choice)
{
    if (choice >= 0 && choice < static_cast<int>(kOrders.size()))
        m_app.results()->setKeepRule({.order = static_cast<KeepRule::Order>(choice),
                                      .references = m_app.results()->keepRule().references});
}

} // namespace orlen
