#pragma once

#include "support/TempHome.h"

#include <string>
#include <string_view>

namespace orlen {

/// A home folder into which applications are put as users and managers do.
struct AppHome : TempHome {
    /// The first bytes of an AppImage of the given kind, and some of the program.
    static std::string imageBytes(char kind = '\2')
    {
        return std::string("\x7F"
                           "ELF\2\1\1\0AI",
                           10) +
               kind + std::string(100, 'x');
    }

    std::string image(std::string_view name) const { return file(name, imageBytes()); }

    /// A launcher of the user; `lines` follow its name and command.
    std::string launcher(std::string_view name, std::string_view title, std::string_view command,
                         std::string_view lines = {}) const
    {
        return file(name, "[Desktop Entry]\nType=Application\nName=" + std::string(title) +
                              "\nExec=" + std::string(command) + '\n' + std::string(lines));
    }

    /// The same for all users.
    std::string sharedLauncher(std::string_view name, std::string_view title, std::string_view command) const
    {
        return launcher(outside("system/usr/share/applications/" + std::string(name)), title, command);
    }

    std::string script(std::string_view name, std::string_view commands) const
    {
        std::string path = file(name, "#!/bin/sh\n" + std::string(commands));
        setMode(path, 0755);
        return path;
    }

    std::string executable(std::string_view name) const
    {
        std::string path = file(name);
        setMode(path, 0755);
        return path;
    }
};

} // namespace orlen
