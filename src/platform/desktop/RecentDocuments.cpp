#include "platform/desktop/RecentDocuments.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"
#include "platform/text/FileUri.h"

#include <pugixml.hpp>

#include <algorithm>

namespace orlen {

namespace {

/// Parsing takes up to 16 times as much memory; real lists have a few megabytes.
constexpr std::size_t kRecentListLimit = 16UL * 1024 * 1024;

std::optional<std::string> pathOf(std::string_view reference, const Places& places)
{
    const auto path = FileUri::path(reference);
    return path ? std::optional(places.normalized(*path)) : std::nullopt;
}

/// "2025-03-01T09:30:00.123456Z": the fraction is dropped.
std::optional<TimePoint> timeOf(std::string_view text)
{
    const std::size_t dot = text.find('.');
    if (dot == std::string_view::npos)
        return timeFromIso(text);
    const std::size_t zone = text.find_first_not_of("0123456789", dot + 1);
    if (zone == std::string_view::npos)
        return std::nullopt;
    return timeFromIso(std::string(text.substr(0, dot)) + std::string(text.substr(zone)));
}

} // namespace

RecentDocuments RecentDocuments::read(const std::string& file)
{
    const auto xml = readSmallFile(file, kRecentListLimit);
    return xml ? parse(*xml) : RecentDocuments();
}

RecentDocuments RecentDocuments::ofUser(const Places& places)
{
    for (const std::string& list : places.expand("{DATA}/recently-used.xbel")) {
        if (exists(list))
            return read(list);
    }
    return {};
}

RecentDocuments RecentDocuments::parse(std::string_view xml)
{
    RecentDocuments recent;
    std::string buffer(xml);
    pugi::xml_document document;
    if (!document.load_buffer_inplace(buffer.data(), buffer.size(), pugi::parse_default, pugi::encoding_utf8))
        return recent;
    const Places& places = Places::current();
    for (const pugi::xml_node bookmark : document.child("xbel").children("bookmark")) {
        auto path = pathOf(bookmark.attribute("href").value(), places);
        const auto visited = timeOf(bookmark.attribute("visited").value());
        if (!path || !visited)
            continue;
        TimePoint& latest = recent.m_visits.try_emplace(std::move(*path), *visited).first->second;
        latest = std::max(latest, *visited);
    }
    return recent;
}

std::optional<TimePoint> RecentDocuments::lastVisit(const std::string& path) const
{
    const auto visit = m_visits.find(path);
    if (visit == m_visits.end())
        return std::nullopt;
    return visit->second;
}

} // namespace orlen
