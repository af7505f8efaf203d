#include "window/photos/PhotoGroupsModel.h"

#include "platform/files/FileStatus.h"
#include "platform/values/CheckedSum.h"
#include "window/lists/DisplayText.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

const QString kJoint = QStringLiteral("\u00a0· ");

QString photosText(int count)
{
    return DisplayText::number(count) + (count == 1 ? QStringLiteral(" photo") : QStringLiteral(" photos"));
}

QString selectedPhotos(int count, std::int64_t bytes)
{
    return count == 0 ? QString()
                      : photosText(count) + QStringLiteral(" selected") + kJoint + DisplayText::size(bytes);
}

bool areSameGroups(const std::vector<Finding>& a, const std::vector<Finding>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const Finding& x, const Finding& y) { return x.kind == y.kind; });
}

} // namespace

void PhotoGroupsModel::setApp(AppModel* app)
{
    if (m_app == app)
        return;
    if (m_app != nullptr)
        m_app->disconnect(this);
    m_app = app;
    if (m_app != nullptr) {
        connect(m_app, &AppModel::findingsChanged, this, &PhotoGroupsModel::followFindings);
        connect(m_app, &AppModel::selectionChanged, this, &PhotoGroupsModel::followSelection);
        connect(m_app, &AppModel::lastScanChanged, this, &PhotoGroupsModel::stageChanged);
    }
    Q_EMIT appChanged();
    followFindings();
}

void PhotoGroupsModel::followFindings()
{
    m_wasFed = false;
    replace(m_app == nullptr ? std::vector<Finding>() : m_app->photoFindings());
}

void PhotoGroupsModel::setFindings(std::vector<Finding> findings)
{
    m_wasFed = true;
    replace(std::move(findings));
}

void PhotoGroupsModel::replace(std::vector<Finding> findings)
{
    std::vector<Finding> before = m_findings;
    for (std::size_t row = m_findings.size(); row-- > 0;) {
        const FindingKind kind = m_findings[row].kind;
        if (std::any_of(findings.begin(), findings.end(), [&](const Finding& f) { return f.kind == kind; }))
            continue;
        beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
        m_findings.erase(m_findings.begin() + static_cast<std::ptrdiff_t>(row));
        m_selected.erase(m_selected.begin() + static_cast<std::ptrdiff_t>(row));
        endRemoveRows();
    }
    const bool areSame = areSameGroups(m_findings, findings);
    if (!areSame)
        beginResetModel();
    m_findings = std::move(findings);
    m_selected.clear();
    std::transform(m_findings.begin(), m_findings.end(), std::back_inserter(m_selected),
                   [this](const Finding& finding) { return selectedOf(finding); });
    if (!areSame)
        endResetModel();
    else if (!m_findings.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    if (finding(m_shownGroup) == nullptr)
        setShownGroup({});
    findSets();
    for (const Finding& changed : m_findings) {
        if (changed.kind != FindingKind::photoDuplicates &&
            std::find(before.begin(), before.end(), changed) == before.end())
            Q_EMIT photosChanged(DisplayText::text(changed.id()));
    }
    Q_EMIT stageChanged();
    Q_EMIT selectedChanged();
}

void PhotoGroupsModel::findSets()
{
    const int generation = ++m_generation;
    m_sets.clear();
    const Finding* similar = finding(DisplayText::text(rawValue(FindingKind::photoDuplicates)));
    if (similar == nullptr)
        return;
    m_workers.start(
        [items = similar->items](const std::stop_token& stop) {
            return PhotoSets::of(
                items, [&stop](const std::string& path) { return !stop.stop_requested() && exists(path); });
        },
        [this, generation](std::vector<PhotoSet> sets) {
            if (generation != m_generation)
                return;
            m_sets = std::move(sets);
            Q_EMIT photosChanged(DisplayText::text(rawValue(FindingKind::photoDuplicates)));
        });
}

void PhotoGroupsModel::followSelection()
{
    for (std::size_t row = 0; row < m_findings.size(); ++row) {
        const Selected selected = selectedOf(m_findings[row]);
        if (std::exchange(m_selected[row], selected) == selected)
            continue;
        const QModelIndex changed = index(static_cast<int>(row));
        Q_EMIT dataChanged(changed, changed,
                           {static_cast<int>(Role::selection), static_cast<int>(Role::checkState)});
    }
    // Also for equal figures: other photos may be selected.
    Q_EMIT selectedChanged();
}

PhotoGroupsModel::Selected PhotoGroupsModel::selectedOf(const Finding& finding) const
{
    Selected selected;
    if (m_app == nullptr || m_app->selection().empty())
        return selected;
    for (const FileEntry& entry : finding.items) {
        if (!m_app->selection().contains(entry.path))
            continue;
        ++selected.count;
        selected.bytes = checkedAdd(selected.bytes, entry.size);
    }
    return selected;
}

PhotoGroupsModel::Stage PhotoGroupsModel::stage() const
{
    if (!m_findings.empty())
        return Groups;
    const bool wasScanned = m_wasFed || (m_app != nullptr && m_app->lastScan().has_value());
    return wasScanned ? Nothing : BeforeScan;
}

void PhotoGroupsModel::setShownGroup(const QString& findingId)
{
    if (m_shownGroup == findingId)
        return;
    m_shownGroup = finding(findingId) == nullptr ? QString() : findingId;
    Q_EMIT shownGroupChanged();
}

QString PhotoGroupsModel::selectedText() const
{
    std::vector<const FileEntry*> selected;
    for (const Finding& finding : m_findings) {
        for (const FileEntry& entry : finding.items) {
            if (m_app != nullptr && m_app->selection().contains(entry.path))
                selected.push_back(&entry);
        }
    }
    const PathSelection::Amount amount = PathSelection::amountOf(std::move(selected));
    return selectedPhotos(static_cast<int>(amount.items), amount.bytes);
}

void PhotoGroupsModel::toggleAll(const QString& findingId)
{
    const Finding* wanted = finding(findingId);
    if (wanted == nullptr)
        return;
    std::vector<std::string> paths;
    paths.reserve(wanted->items.size());
    for (const FileEntry& entry : wanted->items)
        paths.push_back(entry.path);
    if (checkStateOf(static_cast<std::size_t>(wanted - m_findings.data())) == Qt::Checked)
        m_app->deselect(paths);
    else
        m_app->select(paths);
}

void PhotoGroupsModel::review()
{
    CleanPlan plan = m_app->scanPlan();
    std::erase_if(plan.sections, [this](const PlanSection& section) {
        return finding(DisplayText::text(section.id)) == nullptr;
    });
    if (!plan.sections.empty())
        m_app->setSheet(PlanSheet{std::move(plan)});
}

const Finding* PhotoGroupsModel::finding(const QString& id) const
{
    const auto kind = kindFromRaw(id.toStdString());
    const auto found = std::find_if(m_findings.begin(), m_findings.end(),
                                    [&](const Finding& finding) { return finding.kind == kind; });
    return found == m_findings.end() ? nullptr : &*found;
}

const std::vector<PhotoSet>& PhotoGroupsModel::setsOf(const Finding& finding) const
{
    static const std::vector<PhotoSet> kNone;
    return finding.kind == FindingKind::photoDuplicates ? m_sets : kNone;
}

Qt::CheckState PhotoGroupsModel::checkStateOf(std::size_t row) const
{
    const auto count = static_cast<std::size_t>(m_selected[row].count);
    return count == 0                              ? Qt::Unchecked
           : count == m_findings[row].items.size() ? Qt::Checked
                                                   : Qt::PartiallyChecked;
}

int PhotoGroupsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_findings.size());
}

QVariant PhotoGroupsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const Finding& finding = m_findings[row];
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
        return DisplayText::text(rawValue(finding.rating));
    case Role::ratingLabel:
        return DisplayText::text(label(finding.rating));
    case Role::ratingSymbol:
        return DisplayText::text(symbol(finding.rating));
    case Role::photosText:
        return DisplayText::number(photos);
    case Role::summary:
        return photosText(photos) + kJoint + DisplayText::size(finding.totalSize());
    case Role::selection:
        return m_selected[row].count == 0
                   ? QString()
                   : DisplayText::number(m_selected[row].count) + QStringLiteral(" selected") + kJoint +
                         DisplayText::size(m_selected[row].bytes);
    case Role::checkState:
        return checkStateOf(row);
    }
    return {};
}

QHash<int, QByteArray> PhotoGroupsModel::roleNames() const
{
    return {{static_cast<int>(Role::findingId), "findingId"},
            {static_cast<int>(Role::title), "title"},
            {static_cast<int>(Role::explanation), "explanation"},
            {static_cast<int>(Role::reason), "reason"},
            {static_cast<int>(Role::symbol), "symbol"},
            {static_cast<int>(Role::tone), "tone"},
            {static_cast<int>(Role::rating), "rating"},
            {static_cast<int>(Role::ratingLabel), "ratingLabel"},
            {static_cast<int>(Role::ratingSymbol), "ratingSymbol"},
            {static_cast<int>(Role::photosText), "photosText"},
            {static_cast<int>(Role::summary), "summary"},
            {static_cast<int>(Role::selection), "selection"},
            {static_cast<int>(Role::checkState), "checkState"}};
}

} // namespace orlen
