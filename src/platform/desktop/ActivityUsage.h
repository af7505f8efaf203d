#pragma once

#include "platform/values/Time.h"

#include <map>
#include <optional>
#include <string>

namespace orlen {

struct Places;

/// When applications were last started, or opened something, according to the database of KDE's activity
/// manager. Immutable; any thread.
class ActivityUsage {
public:
    /// Empty if the desktop keeps no such database, or it is damaged, unreasonably large, or changes while it
    /// is read. What the desktop has not yet moved into the database itself is not seen. Blocks on the disk;
    /// the file is read as a whole and locked by nobody.
    [[nodiscard]] static ActivityUsage ofUser(const Places& places);
    /// Of the bytes of a database.
    [[nodiscard]] static ActivityUsage parse(std::string bytes);

    /// For the file name of a launcher: "org.example.App.desktop".
    [[nodiscard]] std::optional<TimePoint> lastUse(const std::string& launcher) const;

private:
    std::map<std::string, TimePoint> m_uses;
};

} // namespace orlen
