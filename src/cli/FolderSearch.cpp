#include "cli/FolderSearch.h"

#include "app/AppTexts.h"
#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/CliTexts.h"
#include "cli/PathArgument.h"

#include <utility>

namespace orlen::FolderSearch {

std::optional<std::vector<std::string>> checked(Session& session, const std::vector<std::string>& arguments)
{
    std::vector<std::string> folders;
    for (const std::string& argument : arguments) {
        std::string folder = PathArgument::readableFolder(argument);
        if (folder.empty() || Safety::protectsContents(folder)) {
            session.complain({folder.empty() ? CliTexts::kNoReadableFolder : CliTexts::kProtectedFolder,
                              {{"path", Format::quoted(argument)}}});
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

Message status(const ScanProgress& progress)
{
    std::vector<Message> facts{{CliTexts::kExamined, {{"count", progress.files()}}}};
    if (const StepAmount photos = progress.amount(StepKind::photos); photos.done < photos.all)
        facts.push_back({CliTexts::kPhotosDone, {{"count", photos.done}, {"total", photos.all}}});
    if (const StepAmount compared = progress.amount(StepKind::duplicates); compared.done < compared.all)
        facts.push_back(AppTexts::bytesDone(compared.done, compared.all));
    for (const StepKind step : {StepKind::duplicates, StepKind::photos}) {
        if (const auto left = progress.timeLeft(step))
            facts.push_back(AppTexts::timeLeft(*left));
    }
    facts.push_back(Message::verbatim(Format::shownPath(progress.current())));
    return Message::joined(std::move(facts), Several::Joint::facts);
}

} // namespace orlen::FolderSearch
