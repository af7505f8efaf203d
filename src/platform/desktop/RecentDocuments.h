#pragma once

#include "platform/values/Time.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace orlen {

struct Places;

/// When files were last opened, and programs last opened any, according to the desktop's
/// "recently-used.xbel". Immutable; any thread.
class RecentDocuments {
public:
    RecentDocuments() = default;

    /// Reads the list; empty if it is missing, malformed or unreasonably large.
    [[nodiscard]] static RecentDocuments read(const std::string& file);
    /// The user's list, from the data folder in use or else its default.
    [[nodiscard]] static RecentDocuments ofUser(const Places& places);
    [[nodiscard]] static RecentDocuments parse(std::string_view xml);

    /// When a program last reported opening the file; nothing if none did.
    [[nodiscard]] std::optional<TimePoint> lastVisit(const std::string& path) const;
    /// When the program of this file name last reported opening any file; nothing if it never did.
    [[nodiscard]] std::optional<TimePoint> lastUse(const std::string& program) const;

private:
    using Times = std::unordered_map<std::string, TimePoint>;

    Times m_visits;
    Times m_uses; ///< by file name of the program
};

} // namespace orlen
