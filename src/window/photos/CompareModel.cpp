#include "window/photos/CompareModel.h"

#include "platform/files/FileStatus.h"
#include "window/WindowTexts.h"
#include "window/lists/DisplayText.h"
#include "window/lists/PathCode.h"
#include "window/preview/Thumbnails.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orlen {

CompareModel::CompareModel(AppModel& app) : m_app(app), m_workers(*this)
{
    connect(m_app.results(), &Results::keeperRefused, this, &CompareModel::refused);
    connect(m_app.results(), &Results::selectionChanged, this, [this] {
        allChanged(Role::selected);
        Q_EMIT selectionChanged();
    });
}

void CompareModel::show(PhotoSetsModel* sets, int row, const QString& photo)
{
    if (m_sets != nullptr)
        m_sets->disconnect(this);
    m_sets = sets;
    if (m_sets == nullptr) {
        close();
        return;
    }
    connect(m_sets, &PhotoSetsModel::setsChanged, this, &CompareModel::followSets);
    connect(m_sets, &QObject::destroyed, this, &CompareModel::close);
    showSet(row, PathCode::path(photo));
}

void CompareModel::close()
{
    if (m_sets != nullptr)
        m_sets->disconnect(this);
    m_sets = nullptr;
    showSet(-1, {});
}

void CompareModel::showSet(int row, const std::string& photo)
{
    m_stop.request_stop();
    m_stop = {};
    beginResetModel();
    m_photos.clear();
    m_rows.clear();
    if (m_sets != nullptr) {
        for (const PhotoSetsModel::Photo& one : m_sets->photosOf(row))
            m_photos.push_back({.path = one.path, .isKept = one.isKept, .told = {}});
    }
    endResetModel();
    const auto wanted = std::ranges::find(m_photos, photo, &Photo::path);
    const auto place = static_cast<std::size_t>(wanted - m_photos.begin());
    const bool isBehindTheFirst = wanted != m_photos.end() && place > 0;
    showPage(isBehindTheFirst ? (place - 1) / (kAtOnce - 1) : 0);
    setCurrent(isBehindTheFirst ? static_cast<int>((place - 1) % (kAtOnce - 1)) + 1
                                : std::min(1, length() - 1));
    Q_EMIT selectionChanged();
}

void CompareModel::showPage(std::size_t page)
{
    beginResetModel();
    m_page = page;
    m_rows.clear();
    std::vector<std::size_t> others;
    for (std::size_t number = 0; number < m_photos.size(); ++number)
        (m_photos[number].isKept && m_rows.empty() ? m_rows : others).push_back(number);
    const std::size_t room = kAtOnce - m_rows.size();
    const std::size_t first = std::min(page * (kAtOnce - 1), others.size());
    const std::size_t end = std::min(first + room, others.size());
    m_rows.insert(m_rows.end(), others.begin() + static_cast<std::ptrdiff_t>(first),
                  others.begin() + static_cast<std::ptrdiff_t>(end));
    endResetModel();
    for (const std::size_t row : m_rows)
        look(m_photos[row]);
    m_current = std::clamp(m_current, 0, std::max(0, length() - 1));
    Q_EMIT changed();
    Q_EMIT currentChanged();
}

void CompareModel::showMore()
{
    if (!hasMore())
        return;
    const std::size_t next = m_page + 1;
    showPage(next * (kAtOnce - 1) < m_photos.size() - 1 ? next : 0);
}

void CompareModel::look(Photo& photo)
{
    if (std::exchange(photo.isAsked, true))
        return;
    m_workers.start(
        [path = photo.path, stop = m_stop.get_token()](const std::stop_token& atEnd) {
            std::stop_source both;
            const auto end = [&] { both.request_stop(); };
            const std::stop_callback left(stop, end);
            const std::stop_callback gone(atEnd, end);
            Told told{.traits = PictureReader::traits(path, both.get_token())};
            if (const auto status = statusOf(path); status.ok()) {
                told.length = status.value().length;
                told.modified = status.value().modified;
            }
            return told;
        },
        [this, path = photo.path, stop = m_stop.get_token()](const Told& told) {
            Photo* known = stop.stop_requested() ? nullptr : photoOf(path);
            if (known == nullptr)
                return;
            known->told = told;
            // What is the same for all may be so no longer.
            allChanged(Role::pixels, Role::facts, Role::differing);
        });
}

void CompareModel::followSets()
{
    if (!isShown())
        return;
    const int row = setRow();
    if (row < 0)
        return close();
    const std::vector<PhotoSetsModel::Photo> now = m_sets->photosOf(row);
    const bool areSame =
        now.size() == m_photos.size() && std::ranges::all_of(now, [this](const PhotoSetsModel::Photo& one) {
            return photoOf(one.path) != nullptr;
        });
    if (!areSame)
        return showSet(row, at(static_cast<std::size_t>(m_current)).path);
    for (const PhotoSetsModel::Photo& one : now)
        photoOf(one.path)->isKept = one.isKept;
    allChanged(Role::kept, Role::selected);
    Q_EMIT changed();
    Q_EMIT currentChanged();
    Q_EMIT selectionChanged();
}

int CompareModel::setRow() const
{
    for (const Photo& photo : m_photos) {
        const int row = m_sets == nullptr ? -1 : m_sets->rowWith(PathCode::of(photo.path));
        if (row >= 0)
            return row;
    }
    return -1;
}

CompareModel::Photo* CompareModel::photoOf(const std::string& path)
{
    const auto found = std::ranges::find(m_photos, path, &Photo::path);
    return found == m_photos.end() ? nullptr : &*found;
}

QString CompareModel::title() const
{
    if (!isShown() || m_sets == nullptr)
        return {};
    return DisplayText::text(
        Message(WindowTexts::kSetOf, {{"number", std::int64_t{setRow() + 1}},
                                      {"count", static_cast<std::int64_t>(m_sets->rowCount())}}));
}

QString CompareModel::heading() const
{
    return isShown() && m_sets != nullptr ? m_sets->headingOf(setRow()) : QString();
}

void CompareModel::setCurrent(int row)
{
    if (hasRow(row) && std::exchange(m_current, row) != row)
        Q_EMIT currentChanged();
}

int CompareModel::partner() const
{
    for (int row = 0; row < length(); ++row) {
        if (row != m_current && at(static_cast<std::size_t>(row)).isKept)
            return row;
    }
    return m_current == 0 ? std::min(1, length() - 1) : 0;
}

bool CompareModel::hasNext() const
{
    return isShown() && m_sets != nullptr && setRow() + 1 < m_sets->rowCount();
}

void CompareModel::step(int by)
{
    if (by < 0 ? hasPrevious() : hasNext())
        showSet(setRow() + by, {});
}

void CompareModel::keep(int row)
{
    if (hasRow(row) && !at(static_cast<std::size_t>(row)).isKept)
        m_app.results()->keepInstead(at(static_cast<std::size_t>(row)).path);
}

void CompareModel::keepAll()
{
    std::vector<std::string> all;
    for (const Photo& photo : m_photos) {
        if (!photo.isKept)
            all.push_back(photo.path);
    }
    m_app.results()->deselect(all);
}

void CompareModel::toggle(int row)
{
    if (!hasRow(row) || m_sets == nullptr)
        return;
    const Photo& photo = at(static_cast<std::size_t>(row));
    if (photo.isKept)
        return;
    if (m_app.results()->selection().contains(photo.path))
        m_app.results()->deselect(std::vector{photo.path});
    else
        m_sets->groups()->select(m_sets->findingId(), {photo.path});
}

bool CompareModel::isAnySelected() const
{
    return std::ranges::any_of(m_photos, [this](const Photo& photo) {
        return !photo.isKept && m_app.results()->selection().contains(photo.path);
    });
}

QStringList CompareModel::factsOf(const Photo& photo) const
{
    if (!photo.told)
        return {};
    const Told& told = *photo.told;
    QString pixels;
    QString sharpness;
    QString camera;
    if (told.traits) {
        pixels = DisplayText::pixels(told.traits->whole.width(), told.traits->whole.height());
        sharpness = DisplayText::text(Message(
            WindowTexts::kSharpness, {{"score", std::int64_t{std::llround(told.traits->sharpness)}}}));
        camera = DisplayText::text(told.traits->isFromCamera ? WindowTexts::kCameraData
                                                             : WindowTexts::kNoCameraData);
    }
    return {pixels,    DisplayText::size(told.length),
            sharpness, told.modified ? DisplayText::dateAndTime(*told.modified) : QString(),
            camera,    DisplayText::folderOf(photo.path)};
}

int CompareModel::differing() const
{
    int bits = 0;
    QStringList first;
    for (const std::size_t number : m_rows) {
        const QStringList facts = factsOf(m_photos[number]);
        if (first.isEmpty())
            first = facts;
        for (qsizetype fact = 0; fact < facts.size(); ++fact)
            bits |= facts[fact] == first[fact] ? 0 : 1 << fact;
    }
    return bits;
}

QVariant CompareModel::value(std::size_t number, int role) const
{
    const Photo& photo = at(number);
    switch (static_cast<Role>(role)) {
    case Role::photo:
        return PathCode::of(photo.path);
    case Role::name:
        return DisplayText::nameOf(photo.path);
    case Role::source:
        return Thumbnails::source(photo.path) + QStringLiteral("/inside");
    case Role::pixels:
        return photo.told && photo.told->traits ? QSizeF(photo.told->traits->whole) : QSizeF();
    case Role::kept:
        return photo.isKept;
    case Role::selected:
        return !photo.isKept && m_app.results()->selection().contains(photo.path);
    case Role::facts:
        return factsOf(photo);
    case Role::differing:
        return differing();
    }
    return {};
}

} // namespace orlen
