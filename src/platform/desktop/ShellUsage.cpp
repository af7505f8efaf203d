#include "platform/desktop/ShellUsage.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"

#include <pugixml.hpp>

#include <chrono>

namespace orlen {

ShellUsage ShellUsage::ofUser(const Places& places)
{
    constexpr std::size_t kSizeLimit = 4UL * 1024 * 1024;
    for (const std::string& list : places.expand("{DATA}/gnome-shell/application_state")) {
        if (const auto xml = readSmallFile(list, kSizeLimit))
            return parse(*xml);
    }
    return {};
}

ShellUsage ShellUsage::parse(std::string_view xml)
{
    // In the year 2286; later ones cannot be true.
    constexpr long long kLatestSeconds = 9'999'999'999;
    ShellUsage usage;
    pugi::xml_document document;
    if (!document.load_buffer(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_utf8))
        return usage;
    for (const pugi::xml_node context : document.child("application-state").children("context")) {
        for (const pugi::xml_node application : context.children("application")) {
            const long long seconds = application.attribute("last-seen").as_llong();
            if (seconds > 0 && seconds <= kLatestSeconds)
                usage.m_seen.insert_or_assign(application.attribute("id").value(),
                                              TimePoint(std::chrono::seconds(seconds)));
        }
    }
    return usage;
}

std::optional<TimePoint> ShellUsage::lastSeen(const std::string& launcher) const
{
    const auto seen = m_seen.find(launcher);
    return seen == m_seen.end() ? std::nullopt : std::optional(seen->second);
}

} // namespace orlen
