#pragma once

#include "platform/values/Time.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

struct Places;

/// When windows of applications were last in use, according to the desktop's "application_state". Immutable;
/// any thread.
class ShellUsage {
public:
    /// Empty if the desktop keeps no such list, or it is malformed or unreasonably large. Blocks on the disk.
    [[nodiscard]] static ShellUsage ofUser(const Places& places);
    [[nodiscard]] static ShellUsage parse(std::string_view xml);

    /// For the file name of a launcher: "org.example.App.desktop".
    [[nodiscard]] std::optional<TimePoint> lastSeen(const std::string& launcher) const;

private:
    std::map<std::string, TimePoint> m_seen;
};

} // namespace orlen
