#include "window/diskmap/MapStarts.h"

#include "platform/text/FileUri.h"
#include "platform/text/PathText.h"
#include "window/diskmap/BreadcrumbModel.h"

#include <algorithm>
#include <utility>

namespace orlen {

void MapStarts::set(std::vector<std::string> places, const std::string& start)
{
    m_places = std::move(places);
    if (std::ranges::find(m_places, start) == m_places.end())
        m_places.push_back(start);
}

QStringList MapStarts::names() const
{
    QStringList names;
    for (const std::string& folder : m_places)
        names << BreadcrumbModel::startName(folder);
    return names;
}

int MapStarts::indexOf(const std::string& start) const
{
    return static_cast<int>(std::ranges::find(m_places, start) - m_places.begin());
}

std::optional<std::string> MapStarts::folder(int place) const
{
    if (place < 0 || static_cast<std::size_t>(place) >= m_places.size())
        return std::nullopt;
    return m_places[static_cast<std::size_t>(place)];
}

std::optional<std::string> MapStarts::dropped(const QList<QUrl>& urls)
{
    for (const QUrl& url : urls) {
        if (const auto path = FileUri::path(url.toEncoded().toStdString()))
            return PathText::standardized(*path);
    }
    return std::nullopt;
}

} // namespace orlen
