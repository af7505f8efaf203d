#pragma once

#include "clean/trash/TrashInfo.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "support/TempHome.h"

#include <algorithm>
#include <string>
#include <vector>

/// Looks at a Trash from outside, without the code under test.
namespace orlen::TrashProbe {

inline std::vector<std::string> sortedNames(const std::string& folder)
{
    std::vector<std::string> names = listNames(folder);
    std::sort(names.begin(), names.end());
    return names;
}

/// Where the info file of a trashed item lies.
inline std::string infoFile(const std::string& trashed)
{
    const std::string trash(PathText::parent(PathText::parent(trashed)));
    return trash + "/info/" + std::string(PathText::lastComponent(trashed)) + ".trashinfo";
}

/// The line "Path=" of an item's info file as it stands there; empty when there is none.
inline std::string pathLine(const std::string& trashed)
{
    const std::string text = TempHome::content(infoFile(trashed));
    const std::size_t start = text.find("\nPath=");
    return start == std::string::npos ? std::string()
                                      : text.substr(start + 6, text.find('\n', start + 1) - start - 6);
}

inline FileIdentity identity(const std::string& path)
{
    const auto status = statusOf(path);
    return status.ok() ? status.value().identity : FileIdentity{};
}

} // namespace orlen::TrashProbe
