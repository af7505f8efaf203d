#include "platform/process/RunningPrograms.h"

#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <array>
#include <climits>
#include <string_view>
#include <unistd.h>

namespace orlen::RunningPrograms {

namespace {

/// Empty for kernel threads, other users' processes, and those that have ended meanwhile.
std::string executableOf(const std::string& process)
{
    std::array<char, PATH_MAX> target{};
    const std::string link = process + "/exe";
    const auto length = ::readlink(link.c_str(), target.data(), target.size());
    if (length <= 0 || target.front() != '/')
        return {};
    std::string path(target.data(), static_cast<std::size_t>(length));
    // The kernel's suffix for a deleted file; a real file may also be called that.
    constexpr std::string_view kGone = " (deleted)";
    if (path.ends_with(kGone) && !exists(path))
        path.resize(path.size() - kGone.size());
    return path;
}

bool isOwnProcess(const std::string& process)
{
    if (PathText::lastComponent(process).find_first_not_of("0123456789") != std::string::npos)
        return false;
    const auto status = statusOf(process);
    return status.ok() && status.value().owner == ::geteuid();
}

} // namespace

std::vector<std::string> executables()
{
    std::vector<std::string> paths;
    const std::string& table = Places::current().processes;
    for (const std::string& name : listNames(table)) {
        const std::string process = PathText::join(table, name);
        if (!isOwnProcess(process))
            continue;
        if (std::string path = executableOf(process); !path.empty())
            paths.push_back(std::move(path));
    }
    std::sort(paths.begin(), paths.end());
    paths.erase(std::unique(paths.begin(), paths.end()), paths.end());
    return paths;
}

std::string ownExecutable()
{
    return executableOf("/proc/self");
}

} // namespace orlen::RunningPrograms
