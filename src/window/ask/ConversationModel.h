#pragma once

#include "app/Workers.h"
#include "insight/ChatMessage.h"
#include "window/ask/FindingLinks.h"
#include "window/lists/RowsModel.h"
#include "window/shell/AppModelElement.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace orlen {

/// The conversation on the Ask screen, oldest message first; it lasts as long as the screen. A worker writes
/// the answers, one at a time. Main thread.
class ConversationModel : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    /// Says who writes the answers.
    Q_PROPERTY(QString introduction READ introduction CONSTANT)
    /// Questions to start with.
    Q_PROPERTY(QStringList suggestions READ suggestions CONSTANT)
    /// Whether an answer is being written; no further question can be asked until then.
    Q_PROPERTY(bool thinking READ isThinking NOTIFY thinkingChanged)

public:
    enum class Role {
        fromUser = Qt::UserRole, ///< true: a question; false: an answer
        text,                    ///< may have several lines
        usedModel,               ///< whether a language model wrote the answer
        proposes, ///< whether an answer proposes items for a clean-up that are still in the results
        links,    ///< an answer's FindingLinks; null for a question
    };
    Q_ENUM(Role)
    enum Recall { Earlier, Later };
    Q_ENUM(Recall)

    explicit ConversationModel(AppModel& app = AppModelElement::model());

    [[nodiscard]] static QString introduction();
    [[nodiscard]] static QStringList suggestions();
    [[nodiscard]] bool isThinking() const { return m_isThinking; }

    /// Adds the question and starts answering it. False, without adding it, when it is blank or an answer is
    /// still being written.
    Q_INVOKABLE bool ask(const QString& question);
    /// The previous or next question relative to the last one recalled; empty after the latest.
    Q_INVOKABLE QString recall(Recall step);
    /// Selects what this answer proposes, and nothing else, and opens the review of it.
    Q_INVOKABLE void review(int row);
    /// Copies a message to the clipboard.
    Q_INVOKABLE void copy(int row) const;

Q_SIGNALS:
    void thinkingChanged();

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    struct Row {
        ChatMessage message;
        FindingLinks* links = nullptr; ///< a child of the model; null for a question
    };

    [[nodiscard]] bool proposes(const ChatMessage& message) const;
    void append(ChatMessage message);
    void answer(const QString& question);
    void setThinking(bool isThinking);

    AppModel& m_app;
    std::vector<Row> m_rows;
    bool m_isThinking = false;
    Conversation m_conversation; ///< what a question may follow on
    QString m_waiting;           ///< the question that waits for the walk of the home folder; mostly empty
    std::vector<QString> m_asked;
    std::size_t m_recalled = 0; ///< index of the question recalled last; the number of questions for none

    Workers m_workers; ///< last, so that no worker outlives what it shares
};

} // namespace orlen
