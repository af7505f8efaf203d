#pragma once

#include "platform/values/Time.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace orlen {

struct Places;

/// When programs of the desktop last opened files, from the list "recently-used.xbel". Immutable after it was
/// read; any thread.
class RecentDocuments {
public:
    RecentDocuments() = default;

    /// Reads the list; empty when it is missing, malformed or unreasonably large.
    [[nodiscard]] static RecentDocuments read(const std::string& file);
    /// The user's list: in the data folder in force, or in its default place when there is none.
    [[nodiscard]] static RecentDocuments ofUser(const Places& places);
    [[nodiscard]] static RecentDocuments parse(std::string_view xml);

    /// When the file was last opened by a program that tells the desktop; nothing when none did.
    [[nodiscard]] std::optional<TimePoint> lastVisit(const std::string& path) const;

private:
    std::unordered_map<std::string, TimePoint> m_visits;
};

} // namespace orlen
