#pragma once

#include "support/TempHome.h"

#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace orlen {

/// A home folder whose login runs through tools that a test puts there: nothing here reaches the service
/// manager of whoever runs the tests. Folders of all users lie in "system", "shared" and "Library" beside it.
class StartupHome : public TempHome {
public:
    StartupHome() : m_path(variable("PATH")), m_desktop(variable("XDG_CURRENT_DESKTOP"))
    {
        ::setenv("PATH", folder(outside("bin")).c_str(), 1);
        ::unsetenv("XDG_CURRENT_DESKTOP");
        settle();
    }
    ~StartupHome()
    {
        ::setenv("PATH", m_path.value_or("").c_str(), 1);
        for (const char* name : {"XDG_CURRENT_DESKTOP", "SYSTEMD_OFFLINE", "APPIMAGE", "APPDIR"})
            ::unsetenv(name);
        if (m_desktop)
            ::setenv("XDG_CURRENT_DESKTOP", m_desktop->c_str(), 1);
    }
    StartupHome(const StartupHome&) = delete;
    StartupHome& operator=(const StartupHome&) = delete;

    /// Reads the places again after variables have changed.
    void settle() const
    {
        reloadPlaces([&](Places& places) {
            places.launchctl = outside("bin/launchctl");
            places.sharedConfigs = {outside("shared")};
        });
    }

    /// A program that notes each call in "calls" and then does what the lines of shell say. Only what the
    /// shell itself knows is there: no other program is in PATH.
    void tool(const std::string& name, const std::string& script = "exit 0") const
    {
        const std::string note =
            "echo \"" + name + "${SYSTEMD_OFFLINE:+ offline}: $*\" >> '" + callsPath() + "'\n";
        setMode(file(outside("bin/" + name), "#!/bin/sh\n" + note + script + "\n"), 0755);
    }
    [[nodiscard]] std::vector<std::string> calls() const
    {
        std::vector<std::string> lines;
        std::istringstream text(content(callsPath()));
        for (std::string line; std::getline(text, line);)
            lines.push_back(line);
        return lines;
    }
    void forgetCalls() const { file(callsPath(), ""); }

    /// Lets the system's own programs be found behind those of the test.
    void addSystemTools() const { ::setenv("PATH", (outside("bin") + ":" + m_path.value_or("")).c_str(), 1); }

private:
    static std::optional<std::string> variable(const char* name)
    {
        const char* value = std::getenv(name);
        return value == nullptr ? std::nullopt : std::optional<std::string>(value);
    }
    [[nodiscard]] std::string callsPath() const { return outside("calls"); }

    std::optional<std::string> m_path;
    std::optional<std::string> m_desktop;
};

} // namespace orlen
