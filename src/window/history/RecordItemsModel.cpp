#include "window/history/RecordItemsModel.h"

#include "platform/files/FileStatus.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/shell/Reveal.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

const CleanRecord* recordOf(const AppModel& app, const QString& id)
{
    const auto wanted = Uuid::parse(id.toStdString());
    if (!wanted)
        return nullptr;
    const auto& history = app.cleanUps()->history();
    const auto found = std::find_if(history.begin(), history.end(),
                                    [&](const CleanRecord& record) { return record.id == *wanted; });
    return found == history.end() ? nullptr : &*found;
}

QString textOf(RecordItemsModel::State state)
{
    switch (state) {
    case RecordItemsModel::Unknown:
        return {};
    case RecordItemsModel::InTrash:
        return DisplayText::text(WindowTexts::kInTrash);
    case RecordItemsModel::Restored:
        return DisplayText::text(WindowTexts::kRestoredItem);
    case RecordItemsModel::Gone:
        return DisplayText::text(WindowTexts::kGone);
    }
    return {};
}

} // namespace

RecordItemsModel::RecordItemsModel(AppModel& app) : m_app(app), m_workers(*this)
{
    connect(m_app.cleanUps(), &CleanUps::historyChanged, this, &RecordItemsModel::update);
}

void RecordItemsModel::setRecordId(const QString& id)
{
    if (m_recordId == id)
        return;
    m_recordId = id;
    Q_EMIT recordIdChanged();
    update();
}

void RecordItemsModel::update()
{
    const CleanRecord* record = recordOf(m_app, m_recordId);
    std::vector<Row> rows;
    if (record != nullptr)
        std::transform(record->items.begin(), record->items.end(), std::back_inserter(rows),
                       [](const TrashedItem& item) { return Row{item}; });
    const bool isSame =
        std::equal(rows.begin(), rows.end(), m_rows.begin(), m_rows.end(),
                   [](const Row& a, const Row& b) { return a.item.original == b.item.original; });
    // The same items keep their states until looked up again.
    for (std::size_t row = 0; isSame && row < rows.size(); ++row)
        rows[row].state = m_rows[row].state;
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
                const bool isThere = !item.restored && !item.trashed.empty() && exists(item.trashed);
                states.push_back(item.restored ? Restored : isThere ? InTrash : Gone);
            }
            return states;
        },
        [this](const std::vector<State>& states) { setStates(states); });
}

void RecordItemsModel::setStates(const std::vector<State>& states)
{
    for (std::size_t row = 0; row < states.size(); ++row)
        m_rows[row].state = states[row];
    allChanged(Role::status, Role::statusText);
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
    const auto& [item, state] = m_rows[static_cast<std::size_t>(row)];
    return RowSubject{.path = item.original, .isThere = state == Restored};
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
        return textOf(row.state);
    }
    return {};
}

} // namespace orlen
