#include "window/history/RecordItemsModel.h"

#include "platform/files/FileStatus.h"
#include "window/lists/DisplayText.h"
#include "window/shell/Reveal.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

const CleanRecord* recordOf(const AppModel* app, const QString& id)
{
    const auto wanted = Uuid::parse(id.toStdString());
    if (app == nullptr || !wanted)
        return nullptr;
    const auto& history = app->history();
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
        return QStringLiteral("In the Trash");
    case RecordItemsModel::Restored:
        return QStringLiteral("Restored");
    case RecordItemsModel::Gone:
        return QStringLiteral("No longer in the Trash");
    }
    return {};
}

} // namespace

void RecordItemsModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr)
        connect(m_app, &AppModel::historyChanged, this, &RecordItemsModel::update);
    Q_EMIT appChanged();
    update();
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
    const std::vector<TrashedItem> none;
    const std::vector<TrashedItem>& items = record == nullptr ? none : record->items;
    const bool isSame = std::equal(
        items.begin(), items.end(), m_rows.begin(), m_rows.end(),
        [](const TrashedItem& item, const Row& row) { return item.original == row.item.original; });
    if (isSame) {
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            m_rows[row].item = items[row];
    } else {
        reset(items);
    }
    lookUp();
}

void RecordItemsModel::reset(const std::vector<TrashedItem>& items)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(items.size());
    for (const TrashedItem& item : items)
        m_rows.push_back({item});
    endResetModel();
    Q_EMIT countChanged();
}

void RecordItemsModel::lookUp()
{
    m_lookUpStop.request_stop();
    const int generation = ++m_generation;
    if (m_rows.empty())
        return;
    std::vector<TrashedItem> items;
    items.reserve(m_rows.size());
    for (const Row& row : m_rows)
        items.push_back(row.item);
    m_lookUpStop = m_workers.start(
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
        [this, generation](const std::vector<State>& states) {
            if (generation == m_generation)
                setStates(states);
        });
}

void RecordItemsModel::setStates(const std::vector<State>& states)
{
    std::size_t first = 0; // of the run of changed rows that is not announced yet
    for (std::size_t row = 0; row < states.size(); ++row) {
        if (std::exchange(m_rows[row].state, states[row]) != states[row])
            continue;
        announce(first, row);
        first = row + 1;
    }
    announce(first, states.size());
}

void RecordItemsModel::announce(std::size_t first, std::size_t end)
{
    if (first < end)
        Q_EMIT dataChanged(index(static_cast<int>(first)), index(static_cast<int>(end) - 1));
}

void RecordItemsModel::reveal(int row) const
{
    if (hasIndex(row, 0) && m_rows[static_cast<std::size_t>(row)].state == Restored)
        Reveal::show(m_rows[static_cast<std::size_t>(row)].item.original);
}

int RecordItemsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant RecordItemsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
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

QHash<int, QByteArray> RecordItemsModel::roleNames() const
{
    return {{static_cast<int>(Role::name), "name"},
            {static_cast<int>(Role::folder), "folder"},
            {static_cast<int>(Role::size), "size"},
            {static_cast<int>(Role::status), "status"},
            {static_cast<int>(Role::statusText), "statusText"}};
}

} // namespace orlen
