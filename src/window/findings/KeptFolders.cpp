#include "window/findings/KeptFolders.h"

#include <algorithm>

namespace orlen::KeptFolders {

void prefer(Results& results, const std::string& folder)
{
    KeepRule rule = results.keepRule();
    rule.order = KeepRule::Order::usual;
    rule.folder = folder;
    results.setKeepRule(rule);
}

bool isAlways(const Results& results, const std::string& folder)
{
    return std::ranges::find(results.keepRule().references, folder) != results.keepRule().references.end();
}

void setAlways(Results& results, const std::string& folder, bool isKept)
{
    KeepRule rule = results.keepRule();
    std::erase(rule.references, folder);
    if (isKept)
        rule.references.push_back(folder);
    results.setKeepRule(rule);
}

} // namespace orlen::KeptFolders
