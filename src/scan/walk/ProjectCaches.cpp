#include "scan/walk/ProjectCaches.h"

#include "platform/files/FileStatus.h"
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

constexpr std::string_view kTagged = "Marked as a cache";
constexpr std::string_view kBuiltAgain = "Downloaded or built again";
constexpr std::string_view kRebuilt = "Rebuilt when the project opens";
constexpr std::string_view kEdited = "Open projects use these";

struct Rule {
    std::string_view name;
    std::string_view evidence; ///< one of the above, or a file beside it; "*" at its start matches any text
    std::string_view note;
};

constexpr Rule kRules[] = {
    {".mypy_cache", kTagInside, kTagged},
    {".pytest_cache", kTagInside, kTagged},
    {".ruff_cache", kTagInside, kTagged},
    {".tox", kTagInside, kTagged},
    {".tox", "tox.ini", kBuiltAgain},
    {".tox", "pyproject.toml", kBuiltAgain},
    {".nox", kTagInside, kTagged},
    {".nox", "noxfile.py", kBuiltAgain},
    {".terragrunt-cache", kTagInside, kTagged},
    {".terragrunt-cache", "terragrunt.hcl", kBuiltAgain},
    {".godot", "project.godot", kRebuilt},
    {"Library", "ProjectSettings/ProjectVersion.txt", kRebuilt},
    {"DerivedDataCache", "*.uproject", kRebuilt},
    {"Intermediate", "*.uproject", kRebuilt},
    {"CacheClip", kFilmsAround, kEdited},
    {"ProxyMedia", kFilmsAround, kEdited},
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
