#include "platform/files/LibraryFolders.h"

#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace orlen::LibraryFolders {

namespace {

/// A folder that cannot exist: every call below it fails at once.
constexpr const char* kNowhere = "/dev/null";
constexpr const char* kRuntime = "XDG_RUNTIME_DIR";

struct Base {
    const char* variable;
    const std::vector<std::string> Places::*folders;
    std::vector<const char*> parts; ///< sub-folders that libraries use, which may be links or mounts
};

/// In a sandbox, libraries use other folders than the user's programs.
std::string folderOf(const Base& base, const Places& places)
{
    const char* value = std::getenv(base.variable);
    return value != nullptr && *value == '/' ? std::string(value) : (places.*base.folders).front();
}

bool isSilent(const std::string& folder)
{
    return !Reachability::admit(folder).ok();
}

bool isSilent(const Base& base, const std::string& folder)
{
    return isSilent(folder) || std::any_of(base.parts.begin(), base.parts.end(), [&](const char* part) {
               return isSilent(PathText::join(folder, part));
           });
}

void leaveOutSilentBus(const char* runtime)
{
    if (runtime == nullptr || !isSilent(runtime))
        return;
    ::setenv(kRuntime, kNowhere, 1);
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/dev/null", 1);
}

} // namespace

void leaveOutSilent(const Places& places)
{
    const Base bases[] = {
        {"XDG_CACHE_HOME", &Places::caches, {"Orlen", "fontconfig", "mesa_shader_cache", "nvidia"}},
        {"XDG_CONFIG_HOME", &Places::configs, {"Orlen", "QtProject", "fontconfig"}},
        {"XDG_DATA_HOME", &Places::data, {"fonts", "icons"}},
    };
    const char* runtime = std::getenv(kRuntime);
    if (runtime != nullptr)
        Reachability::askAhead(runtime);
    for (const Base& base : bases)
        Reachability::askAhead(folderOf(base, places));
    for (const Base& base : bases) {
        if (isSilent(base, folderOf(base, places)))
            ::setenv(base.variable, kNowhere, 1);
    }
    leaveOutSilentBus(runtime);
}

} // namespace orlen::LibraryFolders
