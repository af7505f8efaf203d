#include "window/cleaning/FailureListModel.h"

#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

void FailureListModel::setFailures(std::vector<CleanFailure> failures)
{
    std::ranges::stable_sort(failures, {}, &CleanFailure::reason);
    if (failures != m_failures)
        resetRows(m_failures, std::move(failures));
}

std::optional<RowSubject> FailureListModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    const auto& [path, reason] = m_failures[static_cast<std::size_t>(row)];
    const bool isThere = m_where == Where::inPlace && reason != FailureReason::missing;
    return RowSubject{.path = path, .isThere = isThere, .isOffered = isThere};
}

QVariant FailureListModel::value(std::size_t number, int role) const
{
    const auto& [path, reason] = m_failures[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::nameOf(path);
    case Role::folder:
        return DisplayText::folderOf(path);
    case Role::reason:
        return DisplayText::text(reasonText(reason));
    case Role::startsReason:
        return number == 0 || m_failures[number - 1].reason != reason;
    case Role::remedy:
        return DisplayText::text(remedyText(reason));
    }
    return {};
}

} // namespace orlen
