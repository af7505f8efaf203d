#pragma once

#include "app/AppModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// The findings that an answer is about, as far as they are still among the results: a clean-up or another
/// scan takes rows away. Main thread.
class FindingLinks : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("An answer of the conversation has them.")

public:
    enum class Role {
        findingId = Qt::UserRole, ///< for `Navigation.showFinding`
        title,
        symbol, ///< icon of the finding's kind
        tone,   ///< colour of its category
        size,   ///< bytes of its entries as text
    };

    /// `app` must outlive the links.
    FindingLinks(const AppModel& app, std::vector<std::string> ids, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    /// What a row shows of its finding.
    struct Row {
        FindingKind kind;
        std::int64_t bytes = 0;
    };

    void update();

    const AppModel& m_app;
    const std::vector<std::string> m_ids;
    std::vector<Row> m_rows;
};

} // namespace orlen
