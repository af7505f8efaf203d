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

/// Everything that stays installed once an application is gone, and may still use folders that look like its
/// leftovers: packages, the other applications, and whatever the user's menus start.
class RemainingApps {
public:
    /// Everything with a launcher for all users. For when only the application's name is known. Blocks on the
    /// disk.
    [[nodiscard]] static RemainingApps all(const std::stop_token& stop);
    /// Everything except this application. Blocks on the disk.
    [[nodiscard]] static RemainingApps without(const AppInfo& app, std::span<const AppInfo> listed,
                                               const std::stop_token& stop);

    /// Whether one of them has any of these lower-case words as its name, its program's name or part of its
    /// identifier.
    [[nodiscard]] bool hasAnyOf(const std::vector<std::string>& words) const;
    /// Whether a program of that lower-case name is where shells look for it.
    [[nodiscard]] bool hasProgram(const std::string& name) const;
    /// Whether a lower-case file name belongs to a longer identifier than this one.
    [[nodiscard]] bool claims(std::string_view entry, std::string_view identifier) const;
    /// Whether one of them is at or below the path.
    [[nodiscard]] bool lieIn(std::string_view path) const;

private:
    void add(const Launcher& launcher);
    void add(const AppInfo& app);
    void addWords(std::string_view name);
    void addIdentifier(std::string_view identifier);
    [[nodiscard]] bool isAppItself(const std::string& program) const;

    std::string m_app; ///< path of the application left out; may be empty
    std::set<std::string, std::less<>> m_words;
    std::set<std::string, std::less<>> m_identifiers;
    std::vector<std::string> m_paths;
};

} // namespace orlen
