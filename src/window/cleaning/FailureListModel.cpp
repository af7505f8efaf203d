#include "window/cleaning/FailureListModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

void FailureListModel::setFailures(std::vector<CleanFailure> failures)
{
    std::ranges::stable_sort(failures, {}, &CleanFailure::reason);
    if (failures == m_failures)
        return;
    beginResetModel();
    m_failures = std::move(failures);
    endResetModel();
}

int FailureListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_failures.size());
}

QVariant FailureListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const auto& [path, reason] = m_failures[row];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::nameOf(path);
    case Role::folder:
        return DisplayText::folderOf(path);
    case Role::reason:
        return DisplayText::text(reasonText(reason));
    case Role::startsReason:
        return row == 0 || m_failures[row - 1].reason != reason;
    case Role::remedy:
        return DisplayText::text(remedyText(reason));
    }
    return {};
}

QHash<int, QByteArray> FailureListModel::roleNames() const
{
    return {{static_cast<int>(Role::name), "name"},
            {static_cast<int>(Role::folder), "folder"},
            {static_cast<int>(Role::reason), "reason"},
            {static_cast<int>(Role::startsReason), "startsReason"},
            {static_cast<int>(Role::remedy), "remedy"}};
}

} // namespace orlen
