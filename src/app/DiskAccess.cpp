#include "app/DiskAccess.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/process/OwnProgram.h"
#include "platform/text/KeyFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

namespace orlen::DiskAccess {

namespace {

constexpr std::size_t kSandboxFileLimit = 65'536;

/// Follows links, as the programs that keep their data there do.
std::string followed(const std::string& folder)
{
    return folder + "/.";
}

/// Whether nothing is there: no such entry, no parent folder, or a dangling link. A path that is only out of
/// reach does not count, but one that does not answer does: it says nothing about permissions.
bool isMissing(const std::string& path)
{
    const auto end = linkEnd(path);
    const int error = end.ok() ? statusOf(end.value()).error() : end.error();
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ETIMEDOUT;
}

bool isListableOrMissing(const std::string& folder)
{
    return isMissing(folder) || isListable(followed(folder));
}

/// Whether a list such as "xdg-run/pipewire;home;~/Music:ro" grants the home folder for writing.
bool grantsHome(const std::string& list)
{
    std::istringstream entries(list);
    for (std::string entry; std::getline(entries, entry, ';');) {
        if (entry == "home" || entry == "host" || entry == "home:rw" || entry == "host:rw")
            return true;
    }
    return false;
}

/// Reads the description file that Flatpak puts inside a sandbox.
bool sandboxGrantsHome(const std::string& description)
{
    KeyFile file(description);
    while (const auto line = file.next()) {
        if (line->group == "Context" && line->key == "filesystems")
            return grantsHome(std::string(line->value));
    }
    return false;
}

std::optional<std::string> flatpakDescription(const Places& places)
{
    return readSmallFile(places.systemRoot + "/.flatpak-info", kSandboxFileLimit);
}

std::string variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

bool isInSnap()
{
    return !variable("SNAP").empty();
}

} // namespace

bool isGranted(const Places& places)
{
    const std::string probed = places.home + "/Library/Safari";
    if (!isMissing(probed))
        return isListable(followed(probed));
    if (const auto description = flatpakDescription(places))
        return sandboxGrantsHome(*description);
    if (isInSnap())
        return isListableOrMissing(places.home + "/.config");
    return isListableOrMissing(places.home) && isListableOrMissing(places.configs.front()) &&
           isListableOrMissing(places.data.front());
}

std::string grantingCommand(const Places& places)
{
    if (flatpakDescription(places))
        return "flatpak override --user --filesystem=home " + std::string(OwnProgram::identifier());
    if (isInSnap())
        return "snap connect " + variable("SNAP_NAME") + ":home";
    return {};
}

} // namespace orlen::DiskAccess
