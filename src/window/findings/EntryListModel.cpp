#include "window/findings/EntryListModel.h"

#include "platform/text/PathText.h"
#include "window/WindowTexts.h"
#include "window/findings/EntryCell.h"
#include "window/lists/DisplayText.h"
#include "window/lists/LeftUnticked.h"
#include "window/lists/PathCode.h"
#include "window/lists/Remembered.h"
#include "window/shell/Reveal.h"
#include "window/shell/WindowState.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <optional>
#include <utility>

namespace orlen {

namespace {

/// With this many separate pieces, a reset is quicker than removing them one by one.
constexpr std::size_t kMostPieces = 100;

} // namespace

EntryListModel::EntryListModel(AppModel& app) : m_app(app), m_folders(new FolderLookup(this))
{
    connect(m_folders, &FolderLookup::answered, this, [this] { allChanged(Role::symbol, Role::thumbnail); });
    connect(m_app.results(), &Results::findingsChanged, this, &EntryListModel::followFindings);
    connect(m_app.results(), &Results::selectionChanged, this, &EntryListModel::followSelection);
    connect(m_app.results(), &Results::keptApart, this, &EntryListModel::readSelection);
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
    m_rows = finding == nullptr ? EntryRows() : EntryRows(finding->items, finding->rating);
    m_rows.readSelection(m_app.results()->selection());
    arrange();
    endResetModel();
    count();
    Q_EMIT findingChanged();
}

void EntryListModel::followFindings()
{
    const Finding* finding = shownFinding();
    const std::vector<FileEntry> none;
    const std::vector<FileEntry>& entries = finding == nullptr ? none : finding->items;
    const auto isKept = m_rows.keptIn(entries);
    if (!isKept) {
        const auto wasThere = m_rows.entries().empty() ? std::nullopt : m_rows.thoseIn(entries);
        if (wasThere)
            grow(entries, *wasThere);
        else
            load();
        return;
    }
    if (entries.size() == m_rows.entries().size())
        return;
    takeOutRows(*isKept);
    m_rows.drop(*isKept);
    count();
}

/// Adds entries between those that are there already.
void EntryListModel::grow(const std::vector<FileEntry>& entries, const std::vector<bool>& wasThere)
{
    m_rows.grow(entries, wasThere);
    m_rows.readSelection(m_app.results()->selection());
    setRows(m_rows.rows(), m_rows.wanted(m_wish), [](int entry) { return std::to_string(entry); });
    count();
}

void EntryListModel::takeOutRows(const std::vector<bool>& isKept)
{
    const std::vector<EntryRows::Piece> pieces = m_rows.goneRows(isKept);
    std::vector<int>& rows = m_rows.rows();
    if (pieces.size() > kMostPieces) {
        beginResetModel();
        std::erase_if(rows, [&](int entry) { return !isKept[static_cast<std::size_t>(entry)]; });
        endResetModel();
        return;
    }
    // From the end, so that the remaining row numbers stay valid.
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
        beginRemoveRows({}, piece->first, piece->last);
        rows.erase(rows.begin() + piece->first, rows.begin() + piece->last + 1);
        endRemoveRows();
    }
}

void EntryListModel::followSelection()
{
    if (!m_isSelecting)
        readSelection();
}

void EntryListModel::readSelection()
{
    m_rows.readSelection(m_app.results()->selection());
    allChanged(Role::marked);
    count();
}

void EntryListModel::arrange()
{
    m_rows.rows() = m_rows.wanted(m_wish);
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
        setSelected({row}, !m_rows.isSelected(row));
}

void EntryListModel::toggleShown()
{
    const std::vector<int> unticked = m_rows.rowsWithout(true);
    const bool isOneMissing =
        std::ranges::any_of(unticked, [this](int row) { return m_rows.isTickedAlong(row); });
    // With none to untick either, this says why.
    setShown(isOneMissing || m_figures.shown == 0);
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
    std::vector<int> rows = m_rows.rowsWithout(isSelected);
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
    const std::size_t left = std::erase_if(rows, [this](int row) { return !m_rows.isTickedAlong(row); });
    setSelected(rows, true);
    LeftUnticked::say(m_app, left);
}

void EntryListModel::tickIn(const std::string& folder)
{
    std::vector<int> rows = m_rows.rowsWithout(true);
    std::erase_if(rows, [&](int row) { return !PathText::isAtOrBelow(m_rows.at(row).path, folder); });
    tickAlong(std::move(rows));
}

std::optional<RowSubject> EntryListModel::subject(int row) const
{
    if (!hasRow(row))
        return std::nullopt;
    return RowSubject{.path = m_rows.at(row).path,
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
        paths.push_back(m_rows.at(row).path);
        m_rows.setSelected(row, isSelected);
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
    m_figures = m_rows.figures(m_app.results()->listed());
    Q_EMIT figuresChanged();
}

QString EntryListModel::selectedText() const
{
    if (!m_header.isCleanable)
        return DisplayText::facts({DisplayText::counted(entryCount(), WindowTexts::kItems),
                                   DisplayText::size(sizeOf(m_rows.entries()))});
    return DisplayText::facts(
        {DisplayText::selectedOf(m_figures.selected, entryCount()), DisplayText::size(m_figures.bytes)});
}

QVariant EntryListModel::value(std::size_t number, int role) const
{
    const int row = static_cast<int>(number);
    const FileEntry& entry = m_rows.at(row);
    const auto wanted = static_cast<Role>(role);
    if (wanted == Role::rating)
        return QVariant::fromValue(RatingValue(entry.rating.value_or(m_rows.rating())));
    if (wanted == Role::marked)
        return m_rows.isSelected(row);
    if (wanted == Role::kept)
        return entry.kept ? DisplayText::shortPath(entry.kept->path) : QString();
    return EntryCell::value(entry, wanted, *m_folders);
}

QString EntryListModel::pathAt(int row) const
{
    return hasRow(row) ? PathCode::of(m_rows.at(row).path) : QString();
}

QString EntryListModel::sizeAt(int row) const
{
    return hasRow(row) ? DisplayText::size(m_rows.at(row).size) : QString();
}

void EntryListModel::reveal(int row) const
{
    if (hasRow(row))
        Reveal::show(m_rows.at(row).path);
}

void EntryListModel::review()
{
    WindowState::of(m_app).setSheet(PlanSheet{m_app.results()->scanPlan()});
}

} // namespace orlen
