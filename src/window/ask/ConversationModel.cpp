#include "window/ask/ConversationModel.h"

#include "insight/AskEngine.h"
#include "window/lists/DisplayText.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace orlen {

ConversationModel::ConversationModel(QObject* parent) : QAbstractListModel(parent), m_workers(*this) {}

void ConversationModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    m_app = app;
    Q_EMIT appChanged();
}

QString ConversationModel::introduction()
{
    return DisplayText::text(AskEngine::introduction());
}

QStringList ConversationModel::suggestions()
{
    QStringList questions;
    for (const std::string_view question : AskEngine::kSuggestions)
        questions << DisplayText::text(question);
    return questions;
}

bool ConversationModel::ask(const QString& question)
{
    const QString asked = question.simplified();
    if (asked.isEmpty() || m_isThinking || m_app == nullptr)
        return false;
    if (m_asked.empty() || m_asked.back() != asked)
        m_asked.push_back(asked);
    m_recalled = m_asked.size();
    append(ChatMessage::question(asked.toStdString()));
    setThinking(true);
    m_workers.start([question = asked.toStdString(), context = m_app->askContext()](
                        const std::stop_token& /*stop*/) { return AskEngine::answer(question, context); },
                    [this](Answer answer) {
                        setThinking(false);
                        append(ChatMessage::reply(std::move(answer)));
                    });
    return true;
}

QString ConversationModel::recall(Recall step)
{
    if (step == Earlier && m_recalled > 0)
        --m_recalled;
    else if (step == Later && m_recalled < m_asked.size())
        ++m_recalled;
    return m_recalled < m_asked.size() ? m_asked[m_recalled] : QString();
}

void ConversationModel::copy(int row) const
{
    if (row >= 0 && row < rowCount())
        QGuiApplication::clipboard()->setText(
            DisplayText::text(m_rows[static_cast<std::size_t>(row)].message.text));
}

void ConversationModel::append(ChatMessage message)
{
    const int row = rowCount();
    beginInsertRows({}, row, row);
    FindingLinks* links = message.fromUser ? nullptr : new FindingLinks(*m_app, message.findingIDs, this);
    m_rows.push_back({std::move(message), links});
    endInsertRows();
    if (row == 0)
        Q_EMIT emptyChanged();
}

void ConversationModel::setThinking(bool isThinking)
{
    m_isThinking = isThinking;
    Q_EMIT thinkingChanged();
}

int ConversationModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ConversationModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto& [message, links] = m_rows[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::fromUser:
        return message.fromUser;
    case Role::text:
        return DisplayText::text(message.text);
    case Role::usedModel:
        return message.usedModel;
    case Role::links:
        return QVariant::fromValue(links);
    }
    return {};
}

QHash<int, QByteArray> ConversationModel::roleNames() const
{
    return {{static_cast<int>(Role::fromUser), "fromUser"},
            {static_cast<int>(Role::text), "text"},
            {static_cast<int>(Role::usedModel), "usedModel"},
            {static_cast<int>(Role::links), "links"}};
}

} // namespace orlen
