#pragma once

#include "tools/apps/AppInfo.h"
#include "tools/apps/Launcher.h"

#include <set>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What is installed once an application is gone, and may still use folders that look like its leftovers:
/// packages of the distribution, the other applications of the list, and what the user's menus start.
class RemainingApps {
public:
    /// Everything that has a launcher for all users, for an application of which only the name is known.
    /// Blocks on the disk.
    [[nodiscard]] static RemainingApps all(const std::stop_token& stop);
    /// Everything but this application of the list. Blocks on the disk.
    [[nodiscard]] static RemainingApps without(const AppInfo& app, std::span<const AppInfo> listed,
                                               const std::stop_token& stop);

    /// Whether another one has any of these, in lower case, for a name, the name of its program or a part of
    /// its identifier.
    [[nodiscard]] bool hasAnyOf(const std::vector<std::string>& words) const;
    /// Whether a program of that name, in lower case, lies where shells look for it.
    [[nodiscard]] bool hasProgram(const std::string& name) const;
    /// Whether a file name, in lower case, belongs to an identifier that is longer than this one.
    [[nodiscard]] bool claims(std::string_view entry, std::string_view identifier) const;
    /// Whether another application lies at or below the path.
    [[nodiscard]] bool lieIn(std::string_view path) const;

private:
    void add(const Launcher& launcher);
    void add(const AppInfo& app);
    void addWords(std::string_view name);
    void addIdentifier(std::string_view identifier);

    std::string m_app; ///< path of the application left out; may be empty
    std::set<std::string, std::less<>> m_words;
    std::set<std::string, std::less<>> m_identifiers;
    std::vector<std::string> m_paths;
};

} // namespace orlen
