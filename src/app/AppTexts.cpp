#include "app/AppTexts.h"

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

} // namespace orlen::AppTexts
