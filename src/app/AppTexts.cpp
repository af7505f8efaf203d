#include "app/AppTexts.h"

#include "app/Format.h"

#include <system_error>

namespace orlen::AppTexts {

std::string restored(int restored, int failed)
{
    const std::string count = "Restored " + std::to_string(restored);
    if (failed == 0)
        return count + (restored == 1 ? " item." : " items.");
    return count + "; " + std::to_string(failed) +
           " couldn't be restored (already emptied from the Trash, or something exists at the original "
           "location).";
}

std::string damaged(const OwnFile& file)
{
    const std::string name(file.stem);
    return std::string(file.subject) + " is damaged, so only what is legible of it is used. " + name +
           ".json is kept as " + name + ".unreadable-….json before a new one is written.";
}

std::string unreadable(const OwnFile& file, int error)
{
    return std::string(file.subject) + " could not be read (" + std::generic_category().message(error) +
           "). " + std::string(file.stem) +
           ".json is left as it is, and nothing is added to it until it can be.";
}

std::string stillOn(const std::string& service)
{
    return service + " couldn't be switched off; it may run until you log out.";
}

std::string unreadableFolders(std::int64_t count)
{
    return Format::counted(count, "folder") + " could not be read";
}

} // namespace orlen::AppTexts
