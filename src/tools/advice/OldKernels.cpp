#include "tools/advice/OldKernels.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>

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
        const std::string own = PathText::join(modules, release);
        const std::string boot = places.systemRoot + "/boot/";
        // A folder without a kernel is what a removed one left behind, and no command knows of it.
        if (release == running || (!exists(boot + "vmlinuz-" + release) && !exists(own + "/vmlinuz")))
            continue;
        for (std::string path : {own, boot + "vmlinuz-" + release, boot + "initrd.img-" + release,
                                 boot + "initrd-" + release, boot + "initramfs-" + release + ".img",
                                 boot + "System.map-" + release, boot + "config-" + release}) {
            if (exists(path))
                found.paths.push_back(std::move(path));
        }
    }
    return found;
}

} // namespace orlen::OldKernels
