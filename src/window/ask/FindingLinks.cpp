#include "window/ask/FindingLinks.h"

#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

FindingLinks::FindingLinks(const AppModel& app, std::vector<std::string> ids, QObject* parent)
    : RowsModel(parent), m_app(app), m_ids(std::move(ids))
{
    connect(m_app.results(), &Results::findingsChanged, this, &FindingLinks::update);
    update();
}

void FindingLinks::update()
{
    std::vector<Row> rows;
    for (const std::string& id : m_ids) {
        const auto found = std::ranges::find(m_app.results()->findings(), id, &Finding::id);
        if (found != m_app.results()->findings().end())
            rows.push_back({found->kind, found->totalSize()});
    }
    setRows(m_rows, std::move(rows), [](const Row& row) { return rawValue(row.kind); });
}

QVariant FindingLinks::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::findingId:
        return DisplayText::text(rawValue(row.kind));
    case Role::title:
        return DisplayText::text(meta(row.kind).title);
    case Role::symbol:
        return DisplayText::text(meta(row.kind).symbol);
    case Role::tone:
        return DisplayText::colour(meta(row.kind).category);
    case Role::size:
        return DisplayText::size(row.bytes);
    }
    return {};
}

} // namespace orlen
