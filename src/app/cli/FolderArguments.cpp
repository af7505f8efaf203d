#include "app/cli/FolderArguments.h"

#include "app/cli/PathArgument.h"
#include "app/cli/Session.h"
#include "app/cli/Texts.h"
#include "clean/Safety.h"

namespace orlen::FolderArguments {

std::optional<std::vector<std::string>> checked(Session& session, const std::vector<std::string>& arguments)
{
    std::vector<std::string> folders;
    for (const std::string& argument : arguments) {
        std::string folder = PathArgument::readableFolder(argument);
        if (folder.empty() || Safety::protectsContents(folder)) {
            session.complain(
                Texts::quoted(argument).append(folder.empty() ? Texts::kNoReadableFolder : " is protected."));
            return std::nullopt;
        }
        folders.push_back(std::move(folder));
    }
    return folders;
}

} // namespace orlen::FolderArguments
