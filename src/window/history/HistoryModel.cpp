#include "window/history/HistoryModel.h"

#include "app/AppTexts.h"
#include "tools/ToolsTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/Screens.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

/// The screen where a clean-up with this title was planned.
const Screens::Meta& originOf(const Message& title)
{
    if (title.text == AppTexts::kScanPlanTitle)
        return Screens::at(Screens::Home);
    return Screens::at(title.text == ToolsTexts::kUninstall ? Screens::Apps : Screens::History);
}

} // namespace

HistoryModel::HistoryModel(AppModel& app) : m_app(app)
{
    connect(m_app.cleanUps(), &CleanUps::historyChanged, this, &HistoryModel::update);
    connect(m_app.cleanUps(), &CleanUps::restoringChanged, this, &HistoryModel::update);
    connect(m_app.cleanUps(), &CleanUps::restored, this, [this](const CleanUps::Restoration& restoration) {
        Q_EMIT restored(DisplayText::text(restoration.message));
    });
    update();
}

HistoryModel::Row HistoryModel::rowOf(const CleanRecord& record) const
{
    const auto restored = std::count_if(record.items.begin(), record.items.end(),
                                        [](const TrashedItem& item) { return item.restored; });
    return {record.id,
            record.date,
            AppTexts::titleOf(record.title),
            record.freed(),
            static_cast<int>(record.items.size()),
            static_cast<int>(restored),
            record.failed,
            m_app.cleanUps()->isRestoring(record.id)};
}

void HistoryModel::update()
{
    std::vector<Row> rows;
    std::transform(m_app.cleanUps()->history().begin(), m_app.cleanUps()->history().end(),
                   std::back_inserter(rows), [this](const CleanRecord& record) { return rowOf(record); });
    setRows(m_rows, std::move(rows), [](const Row& row) { return row.id.text(); });
}

void HistoryModel::restore(int row)
{
    if (!hasRow(row) || !m_app.isWriter())
        return;
    const Row& wanted = m_rows[static_cast<std::size_t>(row)];
    const auto& history = m_app.cleanUps()->history();
    const auto record = std::find_if(history.begin(), history.end(),
                                     [&](const CleanRecord& candidate) { return candidate.id == wanted.id; });
    if (stateOf(wanted) == Restorable && record != history.end())
        m_app.cleanUps()->startRestore(*record);
}

HistoryModel::State HistoryModel::stateOf(const Row& row)
{
    if (row.isRestoring)
        return Restoring;
    return row.restored == row.items ? Restored : Restorable;
}

QString HistoryModel::summaryOf(const Row& row)
{
    QStringList facts{DisplayText::counted(row.items, WindowTexts::kItems)};
    if (row.restored > 0)
        facts << DisplayText::counted(row.restored, AppTexts::kRestoredCount);
    if (row.failed > 0)
        facts << DisplayText::counted(row.failed, WindowTexts::kNotMoved);
    return DisplayText::facts(facts);
}

QVariant HistoryModel::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::title:
        return DisplayText::text(row.title);
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

} // namespace orlen
