#include "cli/FolderSearch.h"

#include "clean/Safety.h"
#include "cli/PathArgument.h"
#include "cli/Texts.h"

namespace orlen::FolderSearch {

std::optional<std::vector<std::string>> checked(Session& session, const std::vector<std::string>& arguments)
{
    std::vector<std::string> folders;
    for (const std::string& argument : arguments) {
        std::string folder = PathArgument::readableFolder(argument);
        if (folder.empty() || Safety::protectsContents(folder)) {
            session.complain(Format::quoted(argument).append(folder.empty() ? Texts::kNoReadableFolder
                                                                            : " is protected."));
            return std::nullopt;
        }
        folders.push_back(std::move(folder));
    }
    return folders;
}

Walk::Found walked(const std::vector<std::string>& folders, ScanProgress& progress,
                   const std::stop_token& stop)
{
    return folders.empty() ? Walk::home(progress, stop) : Walk::folders(folders, progress, stop);
}

} // namespace orlen::FolderSearch
