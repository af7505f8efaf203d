#include "window/home/StorageModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>

namespace orlen {

StorageModel::StorageModel(AppModel& app) : m_app(app)
{
    connect(m_app.storage(), &Storage::breakdownChanged, this, &StorageModel::update);
    update();
}

void StorageModel::update()
{
    std::vector<Row> rows;
    for (const auto& [category, bytes] : m_app.storage()->breakdown().cats) {
        if (bytes > 0)
            rows.push_back({category, bytes});
    }
    setRows(m_rows, std::move(rows), [](const Row& row) { return rawValue(row.category); });
    Q_EMIT changed();
}

double StorageModel::usedFraction() const
{
    if (m_app.storage()->breakdown().total <= 0)
        return 0;
    const auto& breakdown = m_app.storage()->breakdown();
    const double free = static_cast<double>(breakdown.free) / static_cast<double>(breakdown.total);
    return std::clamp(1 - free, 0.0, 1.0);
}

double StorageModel::fraction(OrlenCategory category) const
{
    if (m_app.storage()->breakdown().total <= 0)
        return 0;
    const auto found = m_app.storage()->breakdown().cats.find(category);
    if (found == m_app.storage()->breakdown().cats.end())
        return 0;
    const double part =
        static_cast<double>(found->second) / static_cast<double>(m_app.storage()->breakdown().total);
    return std::clamp(part, 0.0, 1.0);
}

QString StorageModel::describe(int category) const
{
    const auto row = std::ranges::find_if(
        m_rows, [&](const Row& shown) { return static_cast<int>(shown.category) == category; });
    if (row == m_rows.end())
        return {};
    return DisplayText::facts({DisplayText::text(label(row->category)), DisplayText::size(row->bytes)});
}

QVariant StorageModel::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(label(row.category));
    case Role::colour:
        return DisplayText::colour(row.category);
    case Role::size:
        return DisplayText::size(row.bytes);
    case Role::category:
        return static_cast<int>(row.category);
    }
    return {};
}

} // namespace orlen
