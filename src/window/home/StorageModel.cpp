#include "window/home/StorageModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>

namespace orlen {

void StorageModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr)
        connect(m_app, &AppModel::breakdownChanged, this, &StorageModel::update);
    Q_EMIT appChanged();
    update();
}

void StorageModel::update()
{
    std::vector<Row> rows;
    if (m_app != nullptr) {
        for (const auto& [category, bytes] : m_app->breakdown().cats) {
            if (bytes > 0)
                rows.push_back({category, bytes});
        }
    }
    const bool hasSameCategories =
        std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(),
                   [](const Row& a, const Row& b) { return a.category == b.category; });
    if (hasSameCategories) {
        m_rows = std::move(rows);
        if (!m_rows.empty())
            Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    } else {
        beginResetModel();
        m_rows = std::move(rows);
        endResetModel();
    }
    Q_EMIT changed();
}

bool StorageModel::isReady() const
{
    return m_app != nullptr && m_app->isBreakdownReady();
}

QString StorageModel::freeText() const
{
    return m_app == nullptr ? QString() : DisplayText::size(m_app->breakdown().free);
}

QString StorageModel::totalText() const
{
    return m_app == nullptr ? QString() : DisplayText::size(m_app->breakdown().total);
}

double StorageModel::usedFraction() const
{
    if (m_app == nullptr || m_app->breakdown().total <= 0)
        return 0;
    const auto& breakdown = m_app->breakdown();
    const double free = static_cast<double>(breakdown.free) / static_cast<double>(breakdown.total);
    return std::clamp(1 - free, 0.0, 1.0);
}

double StorageModel::fraction(OrlenCategory category) const
{
    if (m_app == nullptr || m_app->breakdown().total <= 0)
        return 0;
    const auto found = m_app->breakdown().cats.find(category);
    if (found == m_app->breakdown().cats.end())
        return 0;
    const double part = static_cast<double>(found->second) / static_cast<double>(m_app->breakdown().total);
    return std::clamp(part, 0.0, 1.0);
}

int StorageModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant StorageModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::label:
        return DisplayText::text(label(row.category));
    case Role::colour:
        return DisplayText::colour(row.category);
    case Role::size:
        return DisplayText::size(row.bytes);
    case Role::fraction:
        return fraction(row.category);
    }
    return {};
}

QHash<int, QByteArray> StorageModel::roleNames() const
{
    return {{static_cast<int>(Role::label), "label"},
            {static_cast<int>(Role::colour), "colour"},
            {static_cast<int>(Role::size), "size"},
            {static_cast<int>(Role::fraction), "fraction"}};
}

} // namespace orlen
