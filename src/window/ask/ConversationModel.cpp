#include "window/ask/ConversationModel.h"

#include "insight/AskEngine.h"
#include "model/Words.h"
#include "window/lists/DisplayText.h"
#include "window/shell/WindowState.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// A suggested question is put to the engine in English, which it understands.
std::string understood(const QString& question)
{
    for (const Text& suggestion : AskEngine::kSuggestions) {
        if (DisplayText::text(suggestion) == question)
            return std::string(suggestion.base());
    }
    return question.toStdString();
}

} // namespace

ConversationModel::ConversationModel(AppModel& app) : m_app(app), m_workers(*this)
{
    app.programs()->load();
    app.homeContents()->load();
    connect(app.homeContents(), &HomeContents::loaded, this, [this] {
        if (!m_waiting.isEmpty())
            answer(std::exchange(m_waiting, {}));
    });
    connect(app.results(), &Results::findingsChanged, this, [this] {
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1), {static_cast<int>(Role::proposes)});
    });
}

QString ConversationModel::introduction()
{
    return DisplayText::text(AskEngine::introduction());
}

QStringList ConversationModel::suggestions()
{
    QStringList questions;
    for (const Text& question : AskEngine::kSuggestions)
        questions << DisplayText::text(question);
    return questions;
}

bool ConversationModel::ask(const QString& question)
{
    const QString asked = question.simplified();
    if (asked.isEmpty() || m_isThinking)
        return false;
    if (m_asked.empty() || m_asked.back() != asked)
        m_asked.push_back(asked);
    m_recalled = m_asked.size();
    append(ChatMessage::question(asked.toStdString()));
    setThinking(true);
    if (m_app.homeContents()->files() == nullptr)
        m_waiting = asked;
    else
        answer(asked);
    return true;
}

void ConversationModel::answer(const QString& question)
{
    m_workers.start(
        [question = understood(question), context = m_app.askContext(), before = m_conversation](
            const std::stop_token& /*stop*/) { return AskEngine::turn(question, context, before); },
        [this](Turn turn) {
            setThinking(false);
            m_conversation = std::move(turn.next);
            append(ChatMessage::reply(std::move(turn.answer)));
        });
}

QString ConversationModel::recall(Recall step)
{
    if (step == Earlier && m_recalled > 0)
        --m_recalled;
    else if (step == Later && m_recalled < m_asked.size())
        ++m_recalled;
    return m_recalled < m_asked.size() ? m_asked[m_recalled] : QString();
}

bool ConversationModel::proposes(const ChatMessage& message) const
{
    const PathTree& listed = m_app.results()->listed();
    return std::ranges::any_of(message.proposal,
                               [&](const std::string& path) { return listed.find(path) != PathTree::kNone; });
}

void ConversationModel::review(int row)
{
    if (hasRow(row) && m_app.results()->selectOnly(m_rows[static_cast<std::size_t>(row)].message.proposal))
        WindowState::of(m_app).setSheet(PlanSheet{m_app.results()->scanPlan()});
}

void ConversationModel::copy(int row) const
{
    if (hasRow(row))
        QGuiApplication::clipboard()->setText(
            DisplayText::text(shown(m_rows[static_cast<std::size_t>(row)].message.text)));
}

void ConversationModel::append(ChatMessage message)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    FindingLinks* links = message.fromUser ? nullptr : new FindingLinks(m_app, message.findingIDs, this);
    m_rows.push_back({std::move(message), links});
    endInsertRows();
}

void ConversationModel::setThinking(bool isThinking)
{
    m_isThinking = isThinking;
    Q_EMIT thinkingChanged();
}

QVariant ConversationModel::value(std::size_t number, int role) const
{
    const auto& [message, links] = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::fromUser:
        return message.fromUser;
    case Role::text:
        return DisplayText::text(shown(message.text));
    case Role::usedModel:
        return message.usedModel;
    case Role::proposes:
        return proposes(message);
    case Role::links:
        return QVariant::fromValue(links);
    }
    return {};
}

} // namespace orlen
