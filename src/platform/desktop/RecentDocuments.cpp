#include "platform/desktop/RecentDocuments.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"
#include "platform/text/FileUri.h"
#include "platform/text/PathText.h"

#include <pugixml.hpp>

#include <algorithm>
#include <utility>

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

/// The file name of the program in "'/usr/bin/viewer' %u".
std::string programOf(std::string_view command)
{
    constexpr std::string_view kAround = " '\"";
    command.remove_prefix(std::min(command.find_first_not_of(kAround), command.size()));
    command = command.substr(0, command.find_first_of(kAround));
    return std::string(PathText::lastComponent(command));
}

template <typename Times>
void keepLatest(Times& times, std::string key, TimePoint time)
{
    TimePoint& latest = times.try_emplace(std::move(key), time).first->second;
    latest = std::max(latest, time);
}

template <typename Times>
std::optional<TimePoint> found(const Times& times, const std::string& key)
{
    const auto time = times.find(key);
    return time == times.end() ? std::nullopt : std::optional(time->second);
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
        const auto programs = bookmark.child("info").child("metadata").child("bookmark:applications");
        for (const pugi::xml_node program : programs.children("bookmark:application")) {
            const auto opened = timeOf(program.attribute("modified").value());
            if (std::string name = programOf(program.attribute("exec").value()); opened && !name.empty())
                keepLatest(recent.m_uses, std::move(name), *opened);
        }
        auto path = pathOf(bookmark.attribute("href").value(), places);
        const auto visited = timeOf(bookmark.attribute("visited").value());
        if (path && visited)
            keepLatest(recent.m_visits, std::move(*path), *visited);
    }
    return recent;
}

std::optional<TimePoint> RecentDocuments::lastVisit(const std::string& path) const
{
    return found(m_visits, path);
}

std::optional<TimePoint> RecentDocuments::lastUse(const std::string& program) const
{
    return found(m_uses, program);
}

} // namespace orlen
