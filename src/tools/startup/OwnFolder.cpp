#include "tools/startup/OwnFolder.h"

#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

namespace orlen::OwnFolder {

bool canHold(const std::string& path)
{
    std::string folder = path;
    while (folder.size() > 1 && !exists(folder))
        folder = std::string(PathText::parent(folder));
    return isWritable(folder);
}

} // namespace orlen::OwnFolder
