#include "window/photos/PhotoSetsModel.h"

#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/photos/KeptReason.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orlen {

namespace {

/// The sets of which an entry is shown, where the first of them stands.
std::vector<KeptSet> ordered(const std::vector<KeptSet>& sets, const std::vector<int>& entries)
{
    std::unordered_map<std::size_t, const KeptSet*> setOf;
    for (const KeptSet& set : sets) {
        for (const std::size_t number : set.entries)
            setOf[number] = &set;
    }
    std::vector<KeptSet> shown;
    std::unordered_set<const KeptSet*> met;
    for (const int number : entries) {
        const KeptSet* set = setOf.at(static_cast<std::size_t>(number));
        if (met.insert(set).second)
            shown.push_back(*set);
    }
    return shown;
}

} // namespace

void PhotoSetsModel::setGroups(PhotoGroupsModel* groups)
{
    if (m_groups == groups)
        return;
    if (m_groups != nullptr)
        m_groups->disconnect(this);
    m_groups = groups;
    if (m_groups != nullptr) {
        connect(m_groups, &PhotoGroupsModel::photosChanged, this, [this](const QString& findingId) {
            if (findingId == m_findingId)
                update();
        });
        connect(m_groups, &PhotoGroupsModel::orderChanged, this, &PhotoSetsModel::update);
    }
    Q_EMIT groupsChanged();
    update();
}

void PhotoSetsModel::setFindingId(const QString& findingId)
{
    if (m_findingId == findingId)
        return;
    m_findingId = findingId;
    Q_EMIT findingIdChanged();
    update();
}

QString PhotoSetsModel::idOf(const KeptSet& set, const std::vector<FileEntry>& entries)
{
    return PathCode::of(set.kept.empty() ? entries[set.entries.front()].path : set.kept);
}

int PhotoSetsModel::rowWith(const QString& photo) const
{
    const std::string path = PathCode::path(photo);
    const auto set = std::ranges::find_if(m_sets, [&](const Set& one) {
        return std::ranges::find(one.photos, path, &Photo::path) != one.photos.end();
    });
    return set == m_sets.end() ? -1 : static_cast<int>(set - m_sets.begin());
}

std::vector<PhotoSetsModel::Photo> PhotoSetsModel::photosOf(int row) const
{
    return hasRow(row) ? m_sets[static_cast<std::size_t>(row)].photos : std::vector<Photo>();
}

QString PhotoSetsModel::headingOf(int row) const
{
    if (!hasRow(row))
        return {};
    const auto number = static_cast<std::size_t>(row);
    const auto part = [&](Role role) { return value(number, static_cast<int>(role)).toString(); };
    return DisplayText::facts({part(Role::heading), part(Role::reason)});
}

PhotoSetsModel::Set PhotoSetsModel::setOf(const KeptSet& kept, const std::vector<FileEntry>& entries)
{
    const FileEntry& first = entries[kept.entries.front()];
    Set set{.id = idOf(kept, entries).toStdString(), .photos = {}, .date = first.modified};
    if (!kept.kept.empty()) {
        set.photos.push_back({kept.kept, true});
        set.reason = KeptReason::of(kept, entries);
    }
    for (const std::size_t number : kept.entries)
        set.photos.push_back({entries[number].path, false});
    return set;
}

void PhotoSetsModel::update()
{
    std::vector<Set> sets;
    const Finding* finding = m_groups == nullptr ? nullptr : m_groups->finding(m_findingId);
    if (finding != nullptr) {
        for (const KeptSet& kept : ordered(keptSets(finding->items), m_groups->order(*finding)))
            sets.push_back(setOf(kept, finding->items));
    }
    setRows(m_sets, std::move(sets), &Set::id);
    Q_EMIT setsChanged();
}

QVariant PhotoSetsModel::value(std::size_t number, int role) const
{
    const Set& set = m_sets[number];
    switch (static_cast<Role>(role)) {
    case Role::set:
        return DisplayText::text(set.id);
    case Role::heading:
        return DisplayText::facts(
            {DisplayText::counted(static_cast<std::int64_t>(set.photos.size()), WindowTexts::kPhotos),
             set.date ? DisplayText::date(*set.date) : QString(),
             set.photos.front().isKept ? DisplayText::folderOf(set.photos.front().path) : QString()});
    case Role::reason:
        return DisplayText::text(set.reason);
    case Role::photos:
        return static_cast<int>(set.photos.size());
    }
    return {};
}

} // namespace orlen
