#include "tools/advice/OldKernels.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace orlen::OldKernels {

namespace {

/// The release of the running kernel; empty if unknown.
std::string runningRelease(const Places& places)
{
    constexpr std::size_t kLimit = 256;
    std::string release = readSmallFile(places.processes + "/sys/kernel/osrelease", kLimit).value_or("");
    release.erase(std::min(release.find_first_of(" \n"), release.size()));
    return release;
}

/// The release stands between the two parts of a name.
struct BootFile {
    std::string_view start;
    std::string_view end;
};

constexpr BootFile kKernel{"vmlinuz-", ""};
constexpr BootFile kBootFiles[] = {
    kKernel,        {"initrd.img-", ""}, {"initrd-", ""}, {"initramfs-", ".img"}, {"System.map-", ""},
    {"config-", ""}};

std::string pathOf(const BootFile& file, const std::string& release, const Places& places)
{
    std::string path = places.systemRoot + "/boot/";
    return path.append(file.start).append(release).append(file.end);
}

} // namespace

AdviceFound find(const Places& places)
{
    const std::string running = runningRelease(places);
    if (running.empty())
        return {};
    std::string modules = places.systemRoot + "/usr/lib/modules";
    if (!isRealFolder(modules))
        modules = places.systemRoot + "/lib/modules";
    AdviceFound found;
    for (const std::string& release : listNames(modules)) {
        std::string own = PathText::join(modules, release);
        // A folder without a kernel is what a removed one left behind, and no command knows of it.
        if (release == running || (!exists(pathOf(kKernel, release, places)) && !exists(own + "/vmlinuz")))
            continue;
        found.paths.push_back(std::move(own));
        for (const BootFile& file : kBootFiles) {
            if (std::string path = pathOf(file, release, places); exists(path))
                found.paths.push_back(std::move(path));
        }
    }
    return found;
}

} // namespace orlen::OldKernels
