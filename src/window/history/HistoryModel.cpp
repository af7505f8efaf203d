#include "window/history/HistoryModel.h"

#include "app/AppTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/ScreenTable.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// A line breaks only after it.
const QString kJoint = QStringLiteral("\u00a0· ");

QString counted(int count, const QString& one, const QString& many)
{
    return DisplayText::number(count) + u' ' + (count == 1 ? one : many);
}

/// The screen on which a clean-up of this title was put together.
const ScreenMeta& originOf(std::string_view title)
{
    const bool isUninstall = title.starts_with("Uninstall ");
    const Screen screen = title == AppTexts::kScanPlanTitle ? Screen::home
                          : isUninstall                     ? Screen::apps
                                                            : Screen::history;
    return screenTable()[static_cast<std::size_t>(screen)];
}

} // namespace

void HistoryModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr) {
        connect(m_app, &AppModel::historyChanged, this, &HistoryModel::update);
        connect(m_app, &AppModel::restoringChanged, this, &HistoryModel::update);
        connect(m_app, &AppModel::restored, this, [this](const AppModel::Restoration& restoration) {
            Q_EMIT restored(DisplayText::text(restoration.message));
        });
    }
    Q_EMIT appChanged();
    update();
}

HistoryModel::Row HistoryModel::rowOf(const CleanRecord& record) const
{
    const auto restored = std::count_if(record.items.begin(), record.items.end(),
                                        [](const TrashedItem& item) { return item.restored; });
    return {record.id,
            record.date,
            record.title,
            record.freed(),
            static_cast<int>(record.items.size()),
            static_cast<int>(restored),
            record.failed,
            m_app->isRestoring(record.id)};
}

/// Records are only ever added at the front; anything else is another history.
void HistoryModel::update()
{
    std::vector<Row> rows;
    if (m_app != nullptr) {
        std::transform(m_app->history().begin(), m_app->history().end(), std::back_inserter(rows),
                       [this](const CleanRecord& record) { return rowOf(record); });
    }
    const auto isSame = [](const Row& a, const Row& b) { return a.id == b.id; };
    const std::size_t added = rows.size() - std::min(rows.size(), m_rows.size());
    const auto known = rows.begin() + static_cast<std::ptrdiff_t>(added);
    if (std::equal(known, rows.end(), m_rows.begin(), m_rows.end(), isSame)) {
        insertNewest(std::move(rows), added);
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    Q_EMIT countChanged();
}

void HistoryModel::insertNewest(std::vector<Row> rows, std::size_t added)
{
    if (added > 0) {
        const auto end = rows.begin() + static_cast<std::ptrdiff_t>(added);
        beginInsertRows({}, 0, static_cast<int>(added) - 1);
        m_rows.insert(m_rows.begin(), rows.begin(), end);
        endInsertRows();
        Q_EMIT countChanged();
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (m_rows[row] == rows[row])
            continue;
        m_rows[row] = std::move(rows[row]);
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed);
    }
}

void HistoryModel::restore(int row)
{
    if (!hasIndex(row, 0) || !m_app->isWriter())
        return;
    const Row& wanted = m_rows[static_cast<std::size_t>(row)];
    const auto& history = m_app->history();
    const auto record = std::find_if(history.begin(), history.end(),
                                     [&](const CleanRecord& candidate) { return candidate.id == wanted.id; });
    if (stateOf(wanted) == Restorable && record != history.end())
        m_app->startRestore(*record);
}

HistoryModel::State HistoryModel::stateOf(const Row& row)
{
    if (row.isRestoring)
        return Restoring;
    return row.restored == row.items ? Restored : Restorable;
}

QString HistoryModel::summaryOf(const Row& row)
{
    QString summary = counted(row.items, QStringLiteral("item"), QStringLiteral("items"));
    if (row.restored > 0)
        summary += kJoint + DisplayText::number(row.restored) + QStringLiteral(" restored");
    if (row.failed > 0)
        summary += kJoint + DisplayText::number(row.failed) + QStringLiteral(" couldn't be moved");
    return summary;
}

int HistoryModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (static_cast<Role>(role)) {
    case Role::title:
        return DisplayText::path(row.title);
    case Role::symbol:
        return DisplayText::text(originOf(row.title).symbol);
    case Role::tone:
        return QColor::fromRgb(originOf(row.title).colour);
    case Role::date:
        return DisplayText::dateAndTime(row.date);
    case Role::summary:
        return summaryOf(row);
    case Role::freed:
        return DisplayText::size(row.freed);
    case Role::status:
        return stateOf(row);
    case Role::recordId:
        return DisplayText::text(row.id.text());
    }
    return {};
}

QHash<int, QByteArray> HistoryModel::roleNames() const
{
    return {{static_cast<int>(Role::title), "title"},     {static_cast<int>(Role::symbol), "symbol"},
            {static_cast<int>(Role::tone), "tone"},       {static_cast<int>(Role::date), "date"},
            {static_cast<int>(Role::summary), "summary"}, {static_cast<int>(Role::freed), "freed"},
            {static_cast<int>(Role::status), "status"},   {static_cast<int>(Role::recordId), "recordId"}};
}

} // namespace orlen
