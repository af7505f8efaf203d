#include "cli/PathArgument.h"

#include "platform/files/Folder.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"

namespace orlen::PathArgument {

std::string absolute(const std::string& argument)
{
    if (argument.empty())
        return {};
    const std::string path = argument.front() == '/' ? argument : PathText::join(resolved("."), argument);
    return Places::current().normalized(path);
}

std::string located(const std::string& argument)
{
    std::string path = absolute(argument);
    const std::string parent(PathText::parent(path));
    if (parent.empty() || !Reachability::admit(parent).ok())
        return path;
    const std::string folder = resolved(parent);
    return folder.empty()
               ? path
               : Places::current().normalized(PathText::join(folder, PathText::lastComponent(path)));
}

std::string readableFolder(const std::string& argument)
{
    if (!Reachability::admit(argument).ok())
        return {};
    const std::string folder = resolved(argument);
    if (folder.empty() || !isListable(folder))
        return {};
    return Places::current().normalized(folder);
}

} // namespace orlen::PathArgument
