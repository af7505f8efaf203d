#include "window/history/HistoryModel.h"

#include "app/AppTexts.h"
#include "platform/values/CheckedSum.h"
#include "tools/ToolsTexts.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/Screens.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <functional>
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

HistoryModel::HistoryModel(AppModel& app) : m_app(app), m_workers(*this)
{
    connect(m_app.cleanUps(), &CleanUps::historyChanged, this, &HistoryModel::update);
    connect(m_app.cleanUps(), &CleanUps::historyChanged, this, &HistoryModel::lookUp);
    connect(m_app.cleanUps(), &CleanUps::restoringChanged, this, &HistoryModel::update);
    connect(m_app.cleanUps(), &CleanUps::restoreProgressed, this, &HistoryModel::showProgress);
    update();
    lookUp();
}

void HistoryModel::setQuery(const QString& query)
{
    if (m_query == query)
        return;
    m_query = query;
    m_search = WordSearch(query);
    update();
    Q_EMIT queryChanged();
}

void HistoryModel::setOrder(Order order)
{
    if (std::exchange(m_order, order) == order)
        return;
    Q_EMIT orderChanged();
    update();
}

QString HistoryModel::total() const
{
    if (!m_sums || isEmpty())
        return {};
    std::int64_t freed = 0;
    std::int64_t inTrash = 0;
    for (const auto& [id, sums] : *m_sums) {
        freed = checkedAdd(freed, sums.bytesFreed);
        inTrash = checkedAdd(inTrash, sums.bytesInTrash);
    }
    const Text words = inTrash > 0 ? WindowTexts::kFreedAndInTrash : WindowTexts::kFreedInAll;
    return DisplayText::text(Message(words, {{"size", Bytes{freed}}, {"trash", Bytes{inTrash}}}));
}

QString HistoryModel::idAt(int row) const
{
    return hasRow(row) ? DisplayText::text(m_rows[static_cast<std::size_t>(row)].id.text()) : QString();
}

void HistoryModel::lookUp()
{
    m_workers.start(
        m_lookUp,
        [history = m_app.cleanUps()->history()](const std::stop_token& stop) {
            Sums sums;
            for (const CleanRecord& record : history)
                sums.emplace(record.id.text(), Whereabouts::sumsOf(record, stop));
            return sums;
        },
        [this](Sums sums) {
            m_sums = std::move(sums);
            update();
        });
}

HistoryModel::Row HistoryModel::rowOf(const CleanRecord& record) const
{
    const auto restored = std::ranges::count(record.items, true, &TrashedItem::restored);
    const RestoreState* restoring = m_app.cleanUps()->restoring(record.id);
    Row row{record.id,
            record.date,
            AppTexts::titleOf(record.title),
            record.freed(),
            static_cast<int>(record.items.size()),
            static_cast<int>(restored),
            record.failed,
            false,
            restoring == nullptr ? std::nullopt : std::optional(*restoring)};
    if (m_sums) {
        const auto sums = m_sums->find(record.id.text());
        row.isGone = sums != m_sums->end() && sums->second.inTrash == 0;
    }
    return row;
}

bool HistoryModel::isFound(const CleanRecord& record) const
{
    return m_search.isEmpty() || m_search.fits(DisplayText::text(AppTexts::titleOf(record.title))) ||
           std::ranges::any_of(record.items,
                               [&](const TrashedItem& item) { return Whereabouts::isFound(item, m_search); });
}

void HistoryModel::update()
{
    std::vector<Row> rows;
    for (const CleanRecord& record : m_app.cleanUps()->history()) {
        if (isFound(record))
            rows.push_back(rowOf(record));
    }
    if (m_order == BySize)
        std::ranges::stable_sort(rows, std::greater(), &Row::freed);
    setRows(m_rows, std::move(rows), [](const Row& row) { return row.id.text(); });
    Q_EMIT changed();
}

void HistoryModel::showProgress(const Uuid& record)
{
    const auto row = std::ranges::find(m_rows, record, &Row::id);
    const RestoreState* state = m_app.cleanUps()->restoring(record);
    if (row == m_rows.end() || state == nullptr)
        return;
    row->restoring = *state;
    rowChanged(static_cast<std::size_t>(row - m_rows.begin()), Role::progress, Role::progressText,
               Role::stopping);
}

void HistoryModel::restore(int row)
{
    if (!hasRow(row) || !m_app.isWriter())
        return;
    const Row& wanted = m_rows[static_cast<std::size_t>(row)];
    const CleanRecord* record = m_app.cleanUps()->recordOf(wanted.id);
    if (stateOf(wanted) == Restorable && record != nullptr)
        m_app.cleanUps()->startRestore(*record, {}, WindowState::of(m_app).outcomeNotice());
}

void HistoryModel::stop(int row)
{
    if (hasRow(row))
        m_app.cleanUps()->cancelRestore(m_rows[static_cast<std::size_t>(row)].id);
}

HistoryModel::State HistoryModel::stateOf(const Row& row)
{
    if (row.restoring)
        return Restoring;
    if (row.restored == row.items)
        return Restored;
    return row.isGone ? Gone : Restorable;
}

QString HistoryModel::summaryOf(const Row& row)
{
    QStringList facts{DisplayText::counted(row.items, WindowTexts::kItems)};
    if (row.restored > 0)
        facts << DisplayText::counted(row.restored, AppTexts::kRestoredCount);
    if (row.failed > 0)
        facts << DisplayText::counted(row.failed, WindowTexts::kNotMoved);
    if (stateOf(row) == Gone)
        facts << DisplayText::text(WindowTexts::kGone);
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
    case Role::progress:
        return !row.restoring || row.restoring->total <= 0
                   ? 0.0
                   : static_cast<double>(row.restoring->done) / row.restoring->total;
    case Role::progressText:
        return !row.restoring || row.restoring->total <= 0
                   ? QString()
                   : DisplayText::progress(row.restoring->done, row.restoring->total);
    case Role::stopping:
        return row.restoring && row.restoring->isStopping;
    case Role::recordId:
        return DisplayText::text(row.id.text());
    }
    return {};
}

} // namespace orlen
