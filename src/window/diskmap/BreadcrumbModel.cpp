#include "window/diskmap/BreadcrumbModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>

namespace orlen {

namespace {

/// More folders than these get a gap.
constexpr int kShown = 4;
/// How many folders follow a gap.
constexpr int kAfterGap = 2;

} // namespace

QString BreadcrumbModel::nameOfLast(std::span<const std::string> folders)
{
    return folders.size() == 1 ? QStringLiteral("Home") : DisplayText::nameOf(folders.back());
}

std::vector<BreadcrumbModel::Row> BreadcrumbModel::rowsOf(const std::vector<std::string>& folders)
{
    const int count = static_cast<int>(folders.size());
    const int gap = count > kShown ? count - kAfterGap - 1 : 0;
    std::vector<Row> rows;
    for (int step = 0; step < count; ++step) {
        if (step > 0 && step < gap)
            continue;
        const QString name = nameOfLast(std::span(folders).first(static_cast<std::size_t>(step) + 1));
        rows.push_back({name, step, gap > 0 && step == gap, step == count - 1});
    }
    return rows;
}

void BreadcrumbModel::setFolders(const std::vector<std::string>& folders)
{
    std::vector<Row> rows = rowsOf(folders);
    const auto [oldEnd, newEnd] = std::ranges::mismatch(m_rows, rows);
    const auto same = static_cast<int>(oldEnd - m_rows.begin());
    if (same < rowCount()) {
        beginRemoveRows({}, same, rowCount() - 1);
        m_rows.erase(oldEnd, m_rows.end());
        endRemoveRows();
    }
    if (newEnd != rows.end()) {
        beginInsertRows({}, same, static_cast<int>(rows.size()) - 1);
        m_rows = std::move(rows);
        endInsertRows();
    }
}

int BreadcrumbModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant BreadcrumbModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return row.name;
    case Role::step:
        return row.step;
    case Role::isGap:
        return row.isGap;
    case Role::isLast:
        return row.isLast;
    }
    return {};
}

QHash<int, QByteArray> BreadcrumbModel::roleNames() const
{
    return {{static_cast<int>(Role::name), "name"},
            {static_cast<int>(Role::step), "step"},
            {static_cast<int>(Role::isGap), "isGap"},
            {static_cast<int>(Role::isLast), "isLast"}};
}

} // namespace orlen
