#pragma once

#include "support/TempHome.h"

#include <sstream>
#include <string>
#include <vector>

namespace orlen {

/// A home folder whose login runs through tools that a test puts there. Folders of all users lie in "system",
/// "shared" and "Library" beside it.
class StartupHome : public TempHome {
public:
    StartupHome() { settle(); }

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

private:
    [[nodiscard]] std::string callsPath() const { return outside("calls"); }
};

} // namespace orlen
