#include "scan/walk/ProjectCaches.h"

#include "platform/files/FileStatus.h"
#include "scan/ScanTexts.h"
#include "scan/tree/TreeScan.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace orlen::ProjectCaches {

namespace {

// Evidence other than a file beside the cache.
constexpr std::string_view kTagInside = "tag";
constexpr std::string_view kFilmsAround = "films";

struct Rule {
    std::string_view name;
    std::string_view evidence; ///< one of the above, or a file beside it; "*" at its start matches any text
    Text note;
};

constexpr Rule kRules[] = {
    {".mypy_cache", kTagInside, ScanTexts::kMarkedAsCache},
    {".pytest_cache", kTagInside, ScanTexts::kMarkedAsCache},
    {".ruff_cache", kTagInside, ScanTexts::kMarkedAsCache},
    {".tox", kTagInside, ScanTexts::kMarkedAsCache},
    {".tox", "tox.ini", ScanTexts::kBuiltAgain},
    {".tox", "pyproject.toml", ScanTexts::kBuiltAgain},
    {".nox", kTagInside, ScanTexts::kMarkedAsCache},
    {".nox", "noxfile.py", ScanTexts::kBuiltAgain},
    {".terragrunt-cache", kTagInside, ScanTexts::kMarkedAsCache},
    {".terragrunt-cache", "terragrunt.hcl", ScanTexts::kBuiltAgain},
    {".godot", "project.godot", ScanTexts::kRebuiltOnOpening},
    {"Library", "ProjectSettings/ProjectVersion.txt", ScanTexts::kRebuiltOnOpening},
    {"DerivedDataCache", "*.uproject", ScanTexts::kRebuiltOnOpening},
    {"Intermediate", "*.uproject", ScanTexts::kRebuiltOnOpening},
    {"CacheClip", kFilmsAround, ScanTexts::kUsedByProjects},
    {"ProxyMedia", kFilmsAround, ScanTexts::kUsedByProjects},
};

bool isOfType(int folder, const std::string& name, FileType type)
{
    const auto status = statusAt(folder, name.c_str());
    return status.ok() && status.value().type == type;
}

bool hasFileEnding(const TreeListing& listing, std::string_view ending)
{
    bool hasOne = false;
    listing.forEach([&](const FolderEntry& entry) {
        hasOne |= entry.type != EntryType::folder && std::string_view(entry.name).ends_with(ending);
    });
    return hasOne;
}

bool holds(const Rule& rule, const TreeListing& listing, Films films)
{
    const int folder = listing.descriptor();
    if (rule.evidence == kTagInside)
        return WalkRules::hasCacheTag(folder, std::string(rule.name) + "/CACHEDIR.TAG");
    if (rule.evidence == kFilmsAround)
        return films == Films::yes;
    if (rule.evidence.starts_with('*'))
        return hasFileEnding(listing, rule.evidence.substr(1));
    return isOfType(folder, std::string(rule.evidence), FileType::regular);
}

/// Whether a name is that of a folder which nobody uses in place.
bool mayBeCache(int folder, const std::string& name)
{
    return isOfType(folder, name, FileType::folder) &&
           std::ranges::none_of(std::array{"/pyvenv.cfg", "/conda-meta", "/.git"}, [&](const char* inside) {
               return statusAt(folder, (name + inside).c_str()).ok();
           });
}

} // namespace

bool isKnownName(std::string_view name)
{
    return std::ranges::find(kRules, name, &Rule::name) != std::end(kRules);
}

std::vector<Cache> in(const TreeListing& listing, Films films)
{
    std::vector<std::string> names;
    listing.forEach([&](const FolderEntry& entry) {
        if (entry.type != EntryType::regular && isKnownName(entry.name))
            names.emplace_back(entry.name);
    });
    std::vector<Cache> caches;
    for (std::string& name : names) {
        if (!mayBeCache(listing.descriptor(), name))
            continue;
        const auto* const rule = std::ranges::find_if(kRules, [&](const Rule& candidate) {
            return candidate.name == name && holds(candidate, listing, films);
        });
        if (rule != std::end(kRules))
            caches.push_back({std::move(name), rule->note});
    }
    return caches;
}

} // namespace orlen::ProjectCaches
