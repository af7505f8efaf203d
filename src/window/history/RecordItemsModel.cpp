#include "window/history/RecordItemsModel.h"

#include "window/WindowTexts.h"
#include "window/history/Whereabouts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/WordSearch.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace orlen {

namespace {

RecordItemsModel::State stateOf(const TrashedItem& item)
{
    switch (Whereabouts::of(item)) {
    case Whereabouts::Place::inTrash:
        return RecordItemsModel::InTrash;
    case Whereabouts::Place::restored:
        return RecordItemsModel::Restored;
    case Whereabouts::Place::gone:
        return RecordItemsModel::Gone;
    }
    return RecordItemsModel::Gone;
}

} // namespace

const CleanRecord* RecordItemsModel::record() const
{
    const auto id = Uuid::parse(m_recordId.toStdString());
    return id ? m_app.cleanUps()->recordOf(*id) : nullptr;
}

QString RecordItemsModel::textOf(const Row& row)
{
    switch (row.state) {
    case Unknown:
        return {};
    case InTrash:
        return DisplayText::text(WindowTexts::kInTrash);
    case Restored:
        return DisplayText::text(WindowTexts::kRestoredItem);
    case Gone:
        return DisplayText::text(WindowTexts::kGone);
    case NotRestored:
        return DisplayText::capitalized(DisplayText::text(reasonText(*row.failure)));
    }
    return {};
}

RecordItemsModel::RecordItemsModel(AppModel& app) : m_app(app), m_workers(*this)
{
    connect(m_app.cleanUps(), &CleanUps::historyChanged, this, &RecordItemsModel::update);
    connect(m_app.cleanUps(), &CleanUps::restoringChanged, this, [this] { allChanged(Role::restorable); });
}

void RecordItemsModel::setRecordId(const QString& id)
{
    if (m_recordId == id)
        return;
    m_recordId = id;
    Q_EMIT recordIdChanged();
    update();
}

void RecordItemsModel::setQuery(const QString& query)
{
    if (m_query == query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    update();
}

std::vector<TrashedItem> RecordItemsModel::foundItems() const
{
    const CleanRecord* record = this->record();
    if (record == nullptr)
        return {};
    const WordSearch search(m_query);
    std::vector<TrashedItem> items;
    std::ranges::copy_if(record->items, std::back_inserter(items),
                         [&](const TrashedItem& item) { return Whereabouts::isFound(item, search); });
    return items.empty() ? record->items : items;
}

void RecordItemsModel::update()
{
    std::vector<Row> rows;
    std::ranges::transform(foundItems(), std::back_inserter(rows),
                           [](const TrashedItem& item) { return Row{item}; });
    const bool isSame =
        std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(),
                   [](const Row& a, const Row& b) { return a.item.original == b.item.original; });
    // The same items keep their states until looked up again.
    for (std::size_t row = 0; isSame && row < rows.size(); ++row) {
        rows[row].state = m_rows[row].state;
        rows[row].failure = m_rows[row].failure;
    }
    if (isSame)
        m_rows = std::move(rows);
    else
        resetRows(m_rows, std::move(rows));
    lookUp();
}

void RecordItemsModel::lookUp()
{
    m_lookUp.drop();
    if (m_rows.empty())
        return;
    std::vector<TrashedItem> items;
    items.reserve(m_rows.size());
    for (const Row& row : m_rows)
        items.push_back(row.item);
    m_workers.start(
        m_lookUp,
        [items = std::move(items)](const std::stop_token& stop) {
            std::vector<State> states;
            states.reserve(items.size());
            for (const TrashedItem& item : items) {
                if (stop.stop_requested())
                    break;
                states.push_back(stateOf(item));
            }
            return states;
        },
        [this](const std::vector<State>& states) { setStates(states); });
}

void RecordItemsModel::setStates(const std::vector<State>& states)
{
    const CleanRecord* record = this->record();
    for (std::size_t number = 0; number < states.size(); ++number) {
        Row& row = m_rows[number];
        row.state = states[number];
        row.failure = record == nullptr || row.state != InTrash
                          ? std::nullopt
                          : m_app.cleanUps()->restoreFailure(record->id, row.item.original);
        if (row.failure)
            row.state = NotRestored;
    }
    allChanged(Role::status, Role::statusText, Role::remedy, Role::restorable);
}

bool RecordItemsModel::isRestorable(const Row& row) const
{
    const CleanRecord* record = this->record();
    return (row.state == InTrash || row.state == NotRestored) && m_app.isWriter() && record != nullptr &&
           !m_app.cleanUps()->isRestoring(record->id);
}

void RecordItemsModel::activate(int row)
{
    reveal(row);
    if (!hasRow(row) || !isRestorable(m_rows[static_cast<std::size_t>(row)]))
        return;
    m_app.cleanUps()->startRestore(*record(), std::set{m_rows[static_cast<std::size_t>(row)].item.original},
                                   WindowState::of(m_app).outcomeNotice());
}

void RecordItemsModel::reveal(int row) const
{
    if (hasRow(row) && m_rows[static_cast<std::size_t>(row)].state == Restored)
        Reveal::show(m_rows[static_cast<std::size_t>(row)].item.original);
}

std::optional<RowSubject> RecordItemsModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    const Row& shown = m_rows[static_cast<std::size_t>(row)];
    return RowSubject{.path = shown.item.original, .isThere = shown.state == Restored};
}

QVariant RecordItemsModel::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::nameOf(row.item.original);
    case Role::folder:
        return DisplayText::folderOf(row.item.original);
    case Role::size:
        return DisplayText::size(row.item.size);
    case Role::status:
        return row.state;
    case Role::statusText:
        return textOf(row);
    case Role::remedy:
        return row.failure ? DisplayText::text(remedyText(*row.failure)) : QString();
    case Role::restorable:
        return isRestorable(row);
    }
    return {};
}

} // namespace orlen
