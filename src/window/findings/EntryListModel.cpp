#include "window/findings/EntryListModel.h"

#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/FileSymbol.h"
#include "window/lists/LeftUnticked.h"
#include "window/lists/PathCode.h"
#include "window/lists/Remembered.h"
#include "window/preview/Thumbnails.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <numeric>
#include <optional>

namespace orlen {

namespace {

/// With this many separate pieces, a reset is quicker than removing them one by one.
constexpr std::size_t kMostPieces = 100;

struct Piece {
    int first = 0;
    int last = 0;
};

/// Marks the old entries that remain; nothing unless `after` is a subsequence of `before`.
std::optional<std::vector<bool>> keptOf(const std::vector<FileEntry>& before,
                                        const std::vector<FileEntry>& after)
{
    std::vector<bool> isKept(before.size());
    std::size_t next = 0;
    for (std::size_t i = 0; i < before.size(); ++i) {
        isKept[i] = next < after.size() && before[i] == after[next];
        if (isKept[i])
            ++next;
    }
    if (next < after.size())
        return std::nullopt;
    return isKept;
}

} // namespace

EntryListModel::EntryListModel(AppModel& app) : m_app(app), m_folders(new FolderLookup(this))
{
    connect(m_folders, &FolderLookup::answered, this, [this] { allChanged(Role::symbol, Role::thumbnail); });
    connect(m_app.results(), &Results::findingsChanged, this, &EntryListModel::followFindings);
    connect(m_app.results(), &Results::selectionChanged, this, &EntryListModel::followSelection);
}

void EntryListModel::setFindingId(const QString& id)
{
    if (m_findingId == id)
        return;
    m_findingId = id;
    m_wish = Remembered::order(id);
    Q_EMIT orderChanged();
    load();
}

const Finding* EntryListModel::shownFinding() const
{
    const std::string id = m_findingId.toStdString();
    const auto& findings = m_app.results()->findings();
    const auto found = std::find_if(findings.begin(), findings.end(),
                                    [&](const Finding& finding) { return finding.id() == id; });
    return found == findings.end() ? nullptr : &*found;
}

/// A kind that is not in the results has texts, too.
FindingHeader EntryListModel::headerOf(const Finding* finding) const
{
    if (finding != nullptr)
        return FindingHeader::of(*finding);
    const auto kind = kindFromRaw(m_findingId.toStdString());
    return kind ? FindingHeader::of(Finding(*kind, {})) : FindingHeader();
}

void EntryListModel::load()
{
    const Finding* finding = shownFinding();
    beginResetModel();
    m_header = headerOf(finding);
    m_rating = finding == nullptr ? Rating::review : finding->rating;
    m_entries = finding == nullptr ? std::vector<FileEntry>() : finding->items;
    m_words.clear();
    m_isSelected.assign(m_entries.size(), false);
    arrange();
    readSelection();
    endResetModel();
    count();
    Q_EMIT findingChanged();
}

void EntryListModel::followFindings()
{
    const Finding* finding = shownFinding();
    const std::vector<FileEntry> none;
    const std::vector<FileEntry>& entries = finding == nullptr ? none : finding->items;
    const auto isKept = keptOf(m_entries, entries);
    if (!isKept) {
        const auto wasThere = m_entries.empty() ? std::nullopt : keptOf(entries, m_entries);
        if (wasThere)
            growTo(entries, *wasThere);
        else
            load();
        return;
    }
    if (entries.size() == m_entries.size())
        return;
    takeOutRows(*isKept);
    dropEntries(*isKept);
    count();
}

/// Adds entries between those that are there already.
void EntryListModel::growTo(const std::vector<FileEntry>& entries, const std::vector<bool>& wasThere)
{
    std::vector<int> newIndex;
    for (std::size_t i = 0; i < wasThere.size(); ++i) {
        if (wasThere[i])
            newIndex.push_back(static_cast<int>(i));
    }
    m_entries = entries;
    m_words.clear();
    m_isSelected.assign(m_entries.size(), false);
    readSelection();
    for (int& row : m_rows)
        row = newIndex[static_cast<std::size_t>(row)];
    setRows(m_rows, wantedRows(), [](int entry) { return std::to_string(entry); });
    count();
}

void EntryListModel::takeOutRows(const std::vector<bool>& isKept)
{
    std::vector<Piece> pieces;
    for (int row = 0; row < rowCount(); ++row) {
        if (isKept[entryIndex(row)])
            continue;
        if (pieces.empty() || pieces.back().last != row - 1)
            pieces.push_back({row, row});
        else
            pieces.back().last = row;
    }
    if (pieces.size() > kMostPieces) {
        beginResetModel();
        std::erase_if(m_rows, [&](int entry) { return !isKept[static_cast<std::size_t>(entry)]; });
        endResetModel();
        return;
    }
    // From the end, so that the remaining row numbers stay valid.
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
        beginRemoveRows({}, piece->first, piece->last);
        m_rows.erase(m_rows.begin() + piece->first, m_rows.begin() + piece->last + 1);
        endRemoveRows();
    }
}

/// Removes entries that no row shows any more.
void EntryListModel::dropEntries(const std::vector<bool>& isKept)
{
    std::vector<int> newIndex(isKept.size());
    std::size_t next = 0;
    for (std::size_t i = 0; i < isKept.size(); ++i) {
        if (!isKept[i])
            continue;
        newIndex[i] = static_cast<int>(next);
        if (next != i)
            m_entries[next] = std::move(m_entries[i]);
        m_isSelected[next] = m_isSelected[i];
        ++next;
    }
    m_entries.resize(next);
    m_isSelected.resize(next);
    m_words.clear();
    for (int& row : m_rows)
        row = newIndex[static_cast<std::size_t>(row)];
}

void EntryListModel::followSelection()
{
    if (m_isSelecting)
        return;
    readSelection();
    allChanged(Role::marked);
    count();
}

void EntryListModel::readSelection()
{
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        m_isSelected[i] = m_app.results()->selection().contains(m_entries[i].path);
}

std::vector<int> EntryListModel::wantedRows()
{
    if (m_words.empty() && EntryOrder::needsWords(m_wish))
        m_words = EntryOrder::wordsOf(m_entries);
    return EntryOrder::inSets(EntryOrder::rows(m_entries, m_words, m_wish, m_rating), m_entries);
}

void EntryListModel::arrange()
{
    m_rows = wantedRows();
}

void EntryListModel::setFilter(const QString& filter)
{
    if (m_wish.filter == filter)
        return;
    beginResetModel();
    m_wish.filter = filter;
    arrange();
    endResetModel();
    Q_EMIT orderChanged();
    count();
}

void EntryListModel::sortBy(Key key)
{
    beginResetModel();
    m_wish = EntryOrder::pressed(m_wish, static_cast<EntryOrder::Key>(key));
    arrange();
    endResetModel();
    Remembered::setOrder(m_findingId, m_wish);
    Q_EMIT orderChanged();
}

void EntryListModel::toggle(int row)
{
    if (hasRow(row))
        setSelected({row}, !m_isSelected[entryIndex(row)]);
}

void EntryListModel::toggleShown()
{
    const bool isOneMissing = std::ranges::any_of(m_rows, [this](int row) {
        const auto entry = static_cast<std::size_t>(row);
        return !m_isSelected[entry] && isTickedAlong(m_entries[entry], m_rating);
    });
    // With none to untick either, this says why.
    setShown(isOneMissing || m_shownCount == 0);
}

void EntryListModel::selectShown()
{
    setShown(true);
}

void EntryListModel::deselectShown()
{
    setShown(false);
}

void EntryListModel::setShown(bool isSelected)
{
    std::vector<int> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::erase_if(rows, [&](int row) { return m_isSelected[entryIndex(row)] == isSelected; });
    if (isSelected)
        tickAlong(std::move(rows));
    else
        setSelected(rows, false);
}

/// Ticks the rows but those that have to be ticked by themselves, and says so.
void EntryListModel::tickAlong(std::vector<int> rows)
{
    if (!m_header.isCleanable)
        return;
    const std::size_t left =
        std::erase_if(rows, [&](int row) { return !isTickedAlong(entryAt(row), m_rating); });
    setSelected(rows, true);
    LeftUnticked::say(m_app, left);
}

void EntryListModel::tickIn(const std::string& folder)
{
    std::vector<int> rows(m_rows.size());
    std::iota(rows.begin(), rows.end(), 0);
    std::erase_if(rows, [&](int row) {
        return m_isSelected[entryIndex(row)] || !PathText::isAtOrBelow(entryAt(row).path, folder);
    });
    tickAlong(std::move(rows));
}

std::optional<RowSubject> EntryListModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    return RowSubject{.path = entryAt(row).path,
                      .isOffered = m_header.isCleanable,
                      .isTickable = m_header.isCleanable,
                      .isCopy = m_findingId == DisplayText::text(rawValue(FindingKind::duplicates))};
}

void EntryListModel::setSelected(const std::vector<int>& rows, bool isSelected)
{
    if (rows.empty() || !m_header.isCleanable)
        return;
    std::vector<std::string> paths;
    paths.reserve(rows.size());
    for (const int row : rows) {
        paths.push_back(entryAt(row).path);
        m_isSelected[entryIndex(row)] = isSelected;
    }
    {
        // When folders are listed with their contents, other rows change too.
        const QScopedValueRollback selecting(m_isSelecting, !m_app.results()->listed().isNested());
        if (isSelected)
            m_app.results()->select(paths);
        else
            m_app.results()->deselect(paths);
    }
    rowsChanged(rows.front(), rows.back(), Role::marked);
    count();
}

void EntryListModel::count()
{
    std::vector<const FileEntry*> selected;
    m_hasNotes = false;
    m_isInSets =
        std::ranges::any_of(m_entries, [](const FileEntry& entry) { return entry.kept.has_value(); });
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        m_hasNotes = m_hasNotes || !m_entries[i].notes.empty();
        if (m_isSelected[i])
            selected.push_back(&m_entries[i]);
    }
    m_selectedCount = static_cast<int>(selected.size());
    m_selectedBytes =
        selected.empty() ? 0 : PathSelection::sizeOf(std::move(selected), m_app.results()->listed());
    const auto isSelected = [this](int entry) { return m_isSelected[static_cast<std::size_t>(entry)]; };
    m_shownCount = static_cast<int>(std::count_if(m_rows.begin(), m_rows.end(), isSelected));
    Q_EMIT figuresChanged();
}

QString EntryListModel::selectedText() const
{
    if (!m_header.isCleanable)
        return DisplayText::facts(
            {DisplayText::counted(entryCount(), WindowTexts::kItems), DisplayText::size(sizeOf(m_entries))});
    return DisplayText::facts(
        {DisplayText::selectedOf(m_selectedCount, entryCount()), DisplayText::size(m_selectedBytes)});
}

std::size_t EntryListModel::entryIndex(int row) const
{
    return static_cast<std::size_t>(m_rows[static_cast<std::size_t>(row)]);
}

QVariant EntryListModel::value(std::size_t number, int role) const
{
    const int row = static_cast<int>(number);
    const FileEntry& entry = entryAt(row);
    switch (static_cast<Role>(role)) {
    case Role::name:
        return DisplayText::nameOf(entry.path);
    case Role::folder:
        return DisplayText::folderOf(entry.path);
    case Role::size:
        return DisplayText::size(entry.size);
    case Role::date:
        return DisplayText::dateOf(entry);
    case Role::note:
        return DisplayText::text(noteOf(entry));
    case Role::rating:
        return QVariant::fromValue(RatingValue(entry.rating.value_or(m_rating)));
    case Role::symbol:
        return m_folders->isFolder(entry.path) ? FileSymbol::ofFolder() : FileSymbol::ofName(entry.path);
    case Role::thumbnail:
        return m_folders->isFolder(entry.path) ? QString() : Thumbnails::source(entry.path);
    case Role::marked:
        return static_cast<bool>(m_isSelected[entryIndex(row)]);
    case Role::kept:
        return entry.kept ? DisplayText::shortPath(entry.kept->path) : QString();
    }
    return {};
}

QString EntryListModel::pathAt(int row) const
{
    return hasRow(row) ? PathCode::of(entryAt(row).path) : QString();
}

QString EntryListModel::sizeAt(int row) const
{
    return hasRow(row) ? DisplayText::size(entryAt(row).size) : QString();
}

void EntryListModel::reveal(int row) const
{
    if (hasRow(row))
        Reveal::show(entryAt(row).path);
}

void EntryListModel::review()
{
    WindowState::of(m_app).setSheet(PlanSheet{m_app.results()->scanPlan()});
}

} // namespace orlen
