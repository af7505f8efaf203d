#include "clean/Exclusions.h"

#include "platform/text/PathText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

std::string asFolder(std::string_view path)
{
    return PathText::join(path, "");
}

/// Moves the entries for which `isTaken` holds to the end of `taken`.
template <typename IsTaken>
void moveEntries(std::vector<FileEntry>& entries, std::vector<FileEntry>& taken, const IsTaken& isTaken)
{
    const auto first = std::stable_partition(entries.begin(), entries.end(),
                                             [&](const FileEntry& entry) { return !isTaken(entry); });
    std::move(first, entries.end(), std::back_inserter(taken));
    entries.erase(first, entries.end());
}

using Paths = std::set<std::string, std::less<>>;

bool holdsOneOf(const Paths& paths, std::string_view path)
{
    const std::string folder = asFolder(path);
    const auto next = paths.lower_bound(folder);
    return next != paths.end() && next->starts_with(folder);
}

} // namespace

Exclusions::Exclusions(std::vector<Exclusion> lines, std::string home) : m_home(std::move(home))
{
    for (Exclusion& line : lines) {
        Index& index = line.kind == Exclusion::Kind::path ? m_paths : m_names;
        if (index.try_emplace(line.text, m_lines.size()).second)
            m_lines.push_back(std::move(line));
    }
}

const Exclusion* Exclusions::lineOf(const Index& index, std::string_view text) const
{
    const auto found = index.find(text);
    return found == index.end() ? nullptr : &m_lines[found->second];
}

const Exclusion* Exclusions::covering(std::string_view path) const
{
    if (m_paths.empty())
        return nullptr;
    if (const Exclusion* root = lineOf(m_paths, "/"))
        return root;
    for (std::size_t end = 0; end < path.size();) {
        end = std::min(path.find('/', end + 1), path.size());
        if (const Exclusion* line = lineOf(m_paths, path.substr(0, end)))
            return line;
    }
    return nullptr;
}

const Exclusion* Exclusions::naming(std::string_view path) const
{
    if (m_names.empty())
        return nullptr;
    const bool isBelowHome = !m_home.empty() && PathText::isAtOrBelow(path, m_home);
    for (const std::string_view name :
         PathText::components(isBelowHome ? path.substr(m_home.size()) : path)) {
        if (const Exclusion* line = lineOf(m_names, name))
            return line;
    }
    return nullptr;
}

const Exclusion* Exclusions::inside(std::string_view path) const
{
    if (m_paths.empty())
        return nullptr;
    const std::string folder = asFolder(path);
    const auto next = m_paths.lower_bound(folder);
    const bool isInside = next != m_paths.end() && next->first.starts_with(folder);
    return isInside ? &m_lines[next->second] : nullptr;
}

const Exclusion* Exclusions::excludes(std::string_view path) const
{
    if (const Exclusion* line = covering(path))
        return line;
    if (const Exclusion* line = naming(path))
        return line;
    return inside(path);
}

std::vector<Finding> Exclusions::takeFrom(std::vector<Finding>& findings) const
{
    if (isEmpty())
        return {};
    std::vector<std::vector<FileEntry>> taken(findings.size());
    Paths excluded;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        moveEntries(findings[i].items, taken[i],
                    [&](const FileEntry& entry) { return excludes(entry.path) != nullptr; });
        for (const FileEntry& entry : taken[i])
            excluded.insert(entry.path);
    }
    const auto holdsExcluded = [&](const FileEntry& entry) { return holdsOneOf(excluded, entry.path); };
    std::vector<Finding> result;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        if (!excluded.empty())
            moveEntries(findings[i].items, taken[i], holdsExcluded);
        if (taken[i].empty())
            continue;
        std::vector<FileEntry> left = std::exchange(findings[i].items, std::move(taken[i]));
        result.push_back(findings[i]);
        findings[i].items = std::move(left);
    }
    std::erase_if(findings, [](const Finding& finding) { return finding.items.empty(); });
    return result;
}

std::set<std::string, std::less<>> Exclusions::excludedIn(const CleanPlan& plan) const
{
    Paths excluded;
    if (isEmpty())
        return excluded;
    std::vector<std::string_view> others;
    for (const PlanSection& section : plan.sections) {
        for (const FileEntry& entry : section.entries) {
            if (excludes(entry.path) != nullptr)
                excluded.insert(entry.path);
            else
                others.push_back(entry.path);
        }
    }
    std::erase_if(others, [&](std::string_view path) { return !holdsOneOf(excluded, path); });
    excluded.insert(others.begin(), others.end());
    return excluded;
}

} // namespace orlen
