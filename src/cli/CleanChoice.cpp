#include "cli/CleanChoice.h"

#include "app/Format.h"
#include "clean/Safety.h"
#include "cli/CliTexts.h"
#include "cli/PathArgument.h"
#include "model/CopySets.h"
#include "model/PathSelection.h"

#include <algorithm>
#include <utility>

namespace orlen {

namespace {

enum class Standing { unknown, fixed, movable };

/// Whether the scan lists the path, and whether it may be moved.
Standing standing(const std::vector<Finding>& findings, const std::string& path)
{
    Standing best = Standing::unknown;
    for (const Finding& finding : findings) {
        const bool isListed = std::any_of(finding.items.begin(), finding.items.end(),
                                          [&](const FileEntry& entry) { return entry.path == path; });
        if (isListed)
            best = std::max(best, finding.cleanable ? Standing::movable : Standing::fixed);
    }
    return best;
}

/// The first of the paths that takes the kept file of a set along with one of its copies; empty for none.
std::string keptAmong(const std::vector<Finding>& findings, const std::set<std::string>& paths)
{
    std::vector<const Finding*> all;
    all.reserve(findings.size());
    for (const Finding& finding : findings)
        all.push_back(&finding);
    std::vector<FileEntry> entries;
    entries.reserve(paths.size());
    for (const std::string& path : paths)
        entries.push_back({path});
    const std::set<std::string> staying =
        CopySets::staying(CopySets::of(all), PathSelection::outermost(std::move(entries)));
    return staying.empty() ? std::string() : *staying.begin();
}

Message objection(Standing standing, const std::string& argument, const std::string& path)
{
    const Place given{"path", Format::quoted(argument)};
    switch (standing) {
    case Standing::unknown:
        return {CliTexts::kNoEntry, {given}};
    case Standing::fixed:
        return {CliTexts::kPathAndReason, {given, {"reason", within(CliTexts::kTrashIsKept)}}};
    case Standing::movable:
        break;
    }
    return Safety::isProtected(path) ? Message{CliTexts::kProtectedStays, {given}} : Message();
}

} // namespace

bool CleanChoice::isWanted(std::string_view kind) const
{
    return kinds.empty() || std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

CleanChoice::Result CleanChoice::apply(const std::vector<Finding>& findings,
                                       const std::set<std::string>& preselected,
                                       const Exclusions& exclusions) const
{
    if (!paths.empty())
        return exactPaths(findings, exclusions);
    Result result;
    std::vector<std::string_view> candidates;
    for (const Finding& finding : findings) {
        if (!finding.cleanable || !isWanted(finding.id()))
            continue;
        for (const FileEntry& entry : finding.items) {
            candidates.push_back(entry.path);
            const bool isChosen =
                allOfKinds ? isTickedAlong(entry, finding.rating) : preselected.contains(entry.path);
            if (isChosen)
                result.paths.insert(entry.path);
        }
    }
    PathSelection::dropOpenFolders(result.paths, PathTree(candidates));
    return result;
}

CleanChoice::Result CleanChoice::exactPaths(const std::vector<Finding>& findings,
                                            const Exclusions& exclusions) const
{
    Result result;
    for (const std::string& argument : paths) {
        const std::string path = PathArgument::absolute(argument);
        if (exclusions.excludes(path) != nullptr)
            return {{}, {CliTexts::kExcludedStays, {{"path", Format::quoted(argument)}}}};
        Message problem = objection(standing(findings, path), argument, path);
        if (!problem.empty())
            return {{}, std::move(problem)};
        result.paths.insert(path);
    }
    if (const std::string kept = keptAmong(findings, result.paths); !kept.empty())
        return {{}, {CliTexts::kKeptStays, {{"path", Format::quoted(kept)}}}};
    return result;
}

CleanPlan CleanChoice::limited(CleanPlan plan) const
{
    std::erase_if(plan.sections, [this](const PlanSection& section) { return !isWanted(section.id); });
    return plan;
}

} // namespace orlen
