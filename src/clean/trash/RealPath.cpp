#include "clean/trash/RealPath.h"

#include "clean/Safety.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cerrno>

namespace orlen {

namespace {

/// Whether a component below the home folder is hidden.
bool isHidden(const std::string& folder)
{
    const Places& places = Places::current();
    std::string text = places.normalized(folder);
    if (PathText::isAtOrBelow(text, places.home))
        text.erase(0, places.home.size());
    return text.find("/.") != std::string::npos;
}

/// Moves components from `folder` to `missing` until `folder` exists.
Result<void> findExisting(std::string& folder, std::vector<std::string>& missing)
{
    for (auto status = statusOf(folder); !status.ok(); status = statusOf(folder)) {
        if (status.error() != ENOENT || folder == "/")
            return Errno{status.error()};
        missing.insert(missing.begin(), std::string(PathText::lastComponent(folder)));
        folder = PathText::parent(folder);
    }
    return {};
}

} // namespace

std::string RealPath::parent() const
{
    std::string path = folder;
    for (const std::string& part : missing)
        path = PathText::join(path, part);
    return path;
}

std::string RealPath::text() const
{
    return PathText::join(parent(), name);
}

Result<RealPath> RealPath::of(const std::string& path)
{
    // The kernel would stop at the first NUL, the safety rules would not.
    if (path.find('\0') != std::string::npos)
        return Errno{EINVAL};
    if (!Places::current().isHomeUsable || Safety::isProtected(path))
        return Errno{EPERM};
    const std::string standard = PathText::standardized(path);
    RealPath real;
    real.name = PathText::lastComponent(standard);
    std::string folder(PathText::parent(standard));
    if (real.name.empty() || folder.empty())
        return Errno{EINVAL};
    if (const auto found = findExisting(folder, real.missing); !found.ok())
        return Errno{found.error()};
    real.folder = resolved(folder);
    if (real.folder.empty())
        return Errno{ENOENT};
    if (Safety::isProtected(real.text()))
        return Errno{EPERM};
    return real;
}

Result<UniqueFd> RealPath::openParent() const
{
    if (!missing.empty())
        return Errno{ENOENT};
    return openUnlinkedFolder(folder);
}

Result<UniqueFd> RealPath::openOrMakeParent() const
{
    auto opened = openUnlinkedFolder(folder);
    std::string path = folder;
    for (const std::string& part : missing) {
        if (!opened.ok())
            break;
        path = PathText::join(path, part);
        opened = openOrMakeFolderAt(opened.value().get(), part.c_str(), isHidden(path) ? 0700 : 0777);
    }
    return opened;
}

} // namespace orlen
