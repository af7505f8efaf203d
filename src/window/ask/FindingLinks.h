#pragma once

#include "app/AppModel.h"
#include "window/lists/RowsModel.h"

#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

/// The findings that an answer is about, as long as they are in the results: a clean-up or another scan
/// removes rows. Main thread.
class FindingLinks : public orlen::RowsModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("An answer of the conversation has them.")

public:
    enum class Role {
        findingId = Qt::UserRole, ///< for `Navigation.showFinding`
        title,
        symbol, ///< icon of the finding's kind
        tone,   ///< colour of its category
        size,   ///< of its entries, as text
    };
    Q_ENUM(Role)

    /// `app` must outlive the links.
    FindingLinks(const AppModel& app, std::vector<std::string> ids, QObject* parent);

private:
    [[nodiscard]] int length() const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] QVariant value(std::size_t number, int role) const override;

    /// The parts of a finding that its row shows.
    struct Row {
        FindingKind kind;
        std::int64_t bytes = 0;

        friend bool operator==(const Row&, const Row&) = default;
    };

    void update();

    const AppModel& m_app;
    const std::vector<std::string> m_ids;
    std::vector<Row> m_rows;
};

} // namespace orlen
