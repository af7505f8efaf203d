#include "window/lists/RowsModel.h"

#include <QMetaEnum>

#include <utility>

namespace orlen {

RowsModel::RowsModel(QObject* parent) : QAbstractListModel(parent)
{
    connect(this, &RowsModel::rowsInserted, this, &RowsModel::countChanged);
    connect(this, &RowsModel::rowsRemoved, this, &RowsModel::countChanged);
    connect(this, &RowsModel::modelReset, this, &RowsModel::countChanged);
}

int RowsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : length();
}

QVariant RowsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return value(static_cast<std::size_t>(index.row()), role);
}

QHash<int, QByteArray> RowsModel::roleNames() const
{
    const QMetaObject* model = metaObject();
    const QMetaEnum roles = model->enumerator(model->indexOfEnumerator("Role"));
    QHash<int, QByteArray> names;
    for (int role = 0; role < roles.keyCount(); ++role)
        names.insert(roles.value(role), roles.key(role));
    return names;
}

std::optional<RowSubject> RowsModel::subject(int /*row*/) const
{
    return std::nullopt;
}

void RowsModel::tickIn(const std::string& /*folder*/) {}

Qt::CheckState RowsModel::checkStateOf(std::int64_t checked, std::size_t all)
{
    if (checked == 0)
        return Qt::Unchecked;
    return std::cmp_equal(checked, all) ? Qt::Checked : Qt::PartiallyChecked;
}

} // namespace orlen
