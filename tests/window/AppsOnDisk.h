#pragma once

#include "support/TempHome.h"

#include <string>
#include <string_view>

/// Applications as they lie in a home folder.
namespace orlen::AppsOnDisk {

/// A file that is an AppImage by its first bytes, of 40,960 bytes on disk.
inline std::string image(const TempHome& home, std::string_view name)
{
    std::string content("\x7f"
                        "ELF\x02\x01\x01\x00"
                        "AI\x02",
                        11);
    content.resize(40'960, 'x');
    return home.file(name, content);
}

/// A launcher of it, by which it has an identifier.
inline void launcher(const TempHome& home, const std::string& id, const std::string& name,
                     const std::string& program)
{
    home.file(".local/share/applications/" + id + ".desktop",
              "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=\"" + program + "\"\n");
}

} // namespace orlen::AppsOnDisk
