#include "scan/duplicates/Suspect.h"

#include "platform/files/FileContent.h"

namespace orlen {

std::optional<UniqueFd> open(const Suspect& suspect)
{
    auto file = openFile(suspect.cand->path);
    if (!file.ok())
        return std::nullopt;
    return std::move(file).value();
}

bool isUnchanged(const UniqueFd& file, const Suspect& suspect)
{
    const auto now = statusOfOpen(file.get());
    return now.ok() && now.value().identity == suspect.seen.identity &&
           now.value().length == suspect.seen.length && now.value().modified == suspect.seen.modified;
}

} // namespace orlen
