#include "window/photos/PhotoGroupsModel.h"

#include "model/KeptSets.h"
#include "platform/values/CheckedSum.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/LeftUnticked.h"
#include "window/lists/RatingValue.h"
#include "window/lists/Remembered.h"
#include "window/shell/WindowState.h"

#include <algorithm>
#include <set>
#include <utility>

namespace orlen {

namespace {

const QString kPhotoOrder = QStringLiteral("photos");

QString amountText(const Text& words, std::int64_t count, std::int64_t bytes)
{
    return count == 0 ? QString()
                      : DisplayText::facts({DisplayText::counted(count, words), DisplayText::size(bytes)});
}

} // namespace

PhotoGroupsModel::PhotoGroupsModel(AppModel& app) : m_app(app), m_wish(Remembered::order(kPhotoOrder))
{
    connect(m_app.results(), &Results::findingsChanged, this, &PhotoGroupsModel::followFindings);
    connect(m_app.results(), &Results::selectionChanged, this, &PhotoGroupsModel::followSelection);
    connect(m_app.results(), &Results::lastScanChanged, this, &PhotoGroupsModel::stageChanged);
    followFindings();
}

void PhotoGroupsModel::followFindings()
{
    m_wasFed = false;
    replace(m_app.results()->photoFindings());
}

void PhotoGroupsModel::setFindings(std::vector<Finding> findings)
{
    m_wasFed = true;
    replace(std::move(findings));
}

void PhotoGroupsModel::replace(std::vector<Finding> findings)
{
    const std::vector<Row> before = m_rows;
    std::vector<Row> rows;
    for (Finding& finding : findings) {
        const Selected selected = selectedOf(finding);
        rows.push_back({std::move(finding), selected});
    }
    setRows(m_rows, std::move(rows), [](const Row& row) { return row.finding.id(); });
    if (finding(m_shownGroup) == nullptr)
        setShownGroup({});
    for (const auto& [changed, selected] : m_rows) {
        if (std::ranges::find(before, changed, &Row::finding) == before.end())
            Q_EMIT photosChanged(DisplayText::text(changed.id()));
    }
    Q_EMIT stageChanged();
    Q_EMIT selectedChanged();
}

void PhotoGroupsModel::followSelection()
{
    for (std::size_t at = 0; at < m_rows.size(); ++at) {
        const Selected selected = selectedOf(m_rows[at].finding);
        if (std::exchange(m_rows[at].selected, selected) != selected)
            rowChanged(at, Role::selection, Role::checkState);
    }
    // Even if the figures are equal: different photos may be selected.
    Q_EMIT selectedChanged();
}

PhotoGroupsModel::Selected PhotoGroupsModel::selectedOf(const Finding& finding) const
{
    Selected selected;
    if (m_app.results()->selection().empty())
        return selected;
    for (const FileEntry& entry : finding.items) {
        if (!m_app.results()->selection().contains(entry.path))
            continue;
        ++selected.count;
        selected.bytes = checkedAdd(selected.bytes, entry.size);
    }
    return selected;
}

PhotoGroupsModel::Stage PhotoGroupsModel::stage() const
{
    if (!m_rows.empty())
        return Groups;
    const bool wasScanned = m_wasFed || m_app.results()->lastScan().has_value();
    return wasScanned ? Nothing : BeforeScan;
}

void PhotoGroupsModel::setShownGroup(const QString& findingId)
{
    if (m_shownGroup == findingId)
        return;
    m_shownGroup = finding(findingId) == nullptr ? QString() : findingId;
    Q_EMIT shownGroupChanged();
}

void PhotoGroupsModel::setFilter(const QString& filter)
{
    if (m_wish.filter == filter)
        return;
    m_wish.filter = filter;
    Q_EMIT orderChanged();
}

void PhotoGroupsModel::sortBy(int key)
{
    m_wish = EntryOrder::pressed(m_wish, static_cast<EntryOrder::Key>(key));
    Remembered::setOrder(kPhotoOrder, m_wish);
    Q_EMIT orderChanged();
}

std::vector<int> PhotoGroupsModel::order(const Finding& finding) const
{
    std::vector<EntryOrder::Words> words;
    if (EntryOrder::needsWords(m_wish))
        words = EntryOrder::wordsOf(finding.items);
    return EntryOrder::rows(finding.items, words, m_wish, finding.rating);
}

QString PhotoGroupsModel::selectedText() const
{
    std::vector<const FileEntry*> selected;
    for (const auto& [finding, count] : m_rows) {
        for (const FileEntry& entry : finding.items) {
            if (m_app.results()->selection().contains(entry.path))
                selected.push_back(&entry);
        }
    }
    const PathSelection::Amount amount = PathSelection::amountOf(std::move(selected));
    return amountText(WindowTexts::kSelectedPhotos, amount.items, amount.bytes);
}

QString PhotoGroupsModel::coverage() const
{
    const PhotoCoverage& coverage = m_app.results()->photoCoverage();
    if (coverage.lookedAt >= coverage.all)
        return {};
    return DisplayText::text(
        Message(WindowTexts::kPhotosLookedAt, {{"done", coverage.lookedAt}, {"count", coverage.all}}));
}

void PhotoGroupsModel::toggleAll(const QString& findingId)
{
    const Row* wanted = rowOf(findingId);
    if (wanted == nullptr)
        return;
    std::vector<std::string> all;
    std::vector<std::string> missing;
    std::size_t left = 0;
    for (const FileEntry& entry : wanted->finding.items) {
        all.push_back(entry.path);
        if (m_app.results()->selection().contains(entry.path))
            continue;
        if (isTickedAlong(entry, wanted->finding.rating))
            missing.push_back(entry.path);
        else
            ++left;
    }
    // With none to deselect either, the notice says why.
    if (missing.empty() && left < all.size()) {
        m_app.results()->deselect(all);
        return;
    }
    select(findingId, std::move(missing));
    LeftUnticked::say(m_app, left);
}

void PhotoGroupsModel::select(const QString& findingId, std::vector<std::string> paths)
{
    const Row* row = rowOf(findingId);
    if (row == nullptr)
        return;
    const auto& selection = m_app.results()->selection();
    const auto& entries = row->finding.items;
    std::set<std::string> after = selection;
    after.insert(paths.begin(), paths.end());
    for (const KeptSet& set : keptSets(entries)) {
        const auto goes = [&](std::size_t number) { return after.contains(entries[number].path); };
        if (!selection.contains(set.kept) || !std::ranges::all_of(set.entries, goes))
            continue;
        // The kept photo goes by itself, so one of the others has to stay.
        for (auto number = set.entries.rbegin(); number != set.entries.rend(); ++number) {
            if (std::erase(paths, entries[*number].path) > 0)
                break;
        }
    }
    m_app.results()->select(paths);
}

void PhotoGroupsModel::review()
{
    CleanPlan plan = m_app.results()->scanPlan();
    std::erase_if(plan.sections, [this](const PlanSection& section) {
        return finding(DisplayText::text(section.id)) == nullptr;
    });
    if (!plan.sections.empty())
        WindowState::of(m_app).setSheet(PlanSheet{std::move(plan)});
}

const PhotoGroupsModel::Row* PhotoGroupsModel::rowOf(const QString& id) const
{
    const auto kind = kindFromRaw(id.toStdString());
    const auto found = std::ranges::find_if(m_rows, [&](const Row& row) { return row.finding.kind == kind; });
    return found == m_rows.end() ? nullptr : &*found;
}

const Finding* PhotoGroupsModel::finding(const QString& id) const
{
    const Row* row = rowOf(id);
    return row == nullptr ? nullptr : &row->finding;
}

QVariant PhotoGroupsModel::value(std::size_t number, int role) const
{
    const Row& row = m_rows[number];
    const Finding& finding = row.finding;
    const int photos = static_cast<int>(finding.items.size());
    switch (static_cast<Role>(role)) {
    case Role::findingId:
        return DisplayText::text(finding.id());
    case Role::title:
        return DisplayText::text(finding.title);
    case Role::explanation:
        return DisplayText::text(finding.explanation);
    case Role::reason:
        return DisplayText::text(finding.reason);
    case Role::symbol:
        return DisplayText::text(finding.symbol);
    case Role::tone:
        return DisplayText::colour(finding.category);
    case Role::rating:
        return QVariant::fromValue(RatingValue(finding.rating));
    case Role::photos:
        return photos;
    case Role::summary:
        return amountText(WindowTexts::kPhotos, photos, finding.totalSize());
    case Role::selection:
        return amountText(WindowTexts::kSelected, row.selected.count, row.selected.bytes);
    case Role::checkState:
        return checkStateOf(row.selected.count, finding.items.size());
    case Role::inSets:
        return finding.kind == FindingKind::photoDuplicates;
    }
    return {};
}

} // namespace orlen
