#include "clean/SafetyTable.h"

#include "clean/SafetyRules.h"
#include "clean/SyncRoots.h"
#include "platform/files/FileStatus.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen {

namespace {

using Mark = PathTrie::Mark;

/// Calls `visit(folder, rest)` for each path a rule stands for. Only the rest is a pattern: a star in the
/// name of the home folder is just a star.
template <typename Visit>
void forEachPath(const SafetyRules::PathRule& rule, const Places& places, Visit&& visit)
{
    for (const std::string& pattern : SafetyRules::spelledOut(rule.pattern)) {
        const std::size_t end = pattern.starts_with('{') ? pattern.find('}') + 1 : 0;
        const std::vector<std::string> folders = places.expand(pattern.substr(0, end));
        const std::string rest = places.expand(pattern.substr(end)).front();
        for (const std::string& folder : folders)
            visit(folder, rest);
    }
}

/// The pattern up to its first component with a star.
std::string_view fixedStart(std::string_view pattern)
{
    const std::size_t star = pattern.find('*');
    return star == std::string_view::npos ? pattern : PathText::parent(pattern.substr(0, star + 1));
}

/// Whether something exists there, checked component by component so that neither links nor foreign mounts
/// are entered. Anything behind a link counts as existing.
bool mayExist(const std::string& path, const Places& places, const HomeMounts& mounts)
{
    if (!PathText::isAtOrBelow(path, places.home) || mounts.isForeign(path))
        return false;
    for (std::size_t end = places.home.size(); end < path.size();) {
        end = std::min(path.find('/', end + 1), path.size());
        const auto status = statusOf(path.substr(0, end));
        if (!status.ok())
            return false;
        if (status.value().type != FileType::folder)
            return end == path.size() || status.value().type == FileType::link;
    }
    return true;
}

/// Whether `Places::normalized` would change the text.
bool isNormalComponent(std::string_view component)
{
    return !component.empty() && component != "." && component != "..";
}

} // namespace

SafetyTable::SafetyTable(Places places) : m_places(std::move(places))
{
    if (!m_places.isHomeUsable)
        return;
    const HomeMounts mounts = HomeMounts::read(m_places);
    addRules(mounts);
    addFound(mounts);
}

void SafetyTable::mark(std::string_view folder, std::string_view pattern, Mark mark, Protection protection)
{
    m_marks.add(folder, pattern, mark, static_cast<PathTrie::Label>(protection));
}

void SafetyTable::addRules(const HomeMounts& mounts)
{
    for (const auto& rule : SafetyRules::placeRules()) {
        forEachPath(rule, m_places, [&](const std::string& folder, const std::string& rest) {
            mark(folder, rest, rule.mark, rule.protection);
        });
    }
    std::vector<std::string> treasures;
    for (const auto& rule : SafetyRules::treasureRules()) {
        forEachPath(rule, m_places, [&](const std::string& folder, const std::string& rest) {
            mark(folder, rest, rule.mark, rule.protection);
            std::string fixed = folder + std::string(fixedStart(rest));
            if (rule.mark != Mark::opened && mayExist(fixed, m_places, mounts))
                treasures.push_back(std::move(fixed));
        });
    }
    // Only now, so that a rule of its own explains a folder better than what it holds.
    for (const std::string& treasure : treasures)
        guardParents(treasure);
}

void SafetyTable::addFound(const HomeMounts& mounts)
{
    const auto markAll = [this](const std::vector<std::string>& paths, Mark kind, Protection protection) {
        for (const std::string& path : paths) {
            mark(path, {}, kind, protection);
            guardParents(path);
        }
    };
    markAll(SyncRoots::find(m_places, mounts), Mark::contents, Protection::syncFolders);
    markAll(mounts.foreign, Mark::contents, Protection::otherFileSystems);
    markAll(mounts.points, Mark::itself, Protection::mountPoints);
}

void SafetyTable::guardParents(std::string_view path)
{
    for (path = PathText::parent(path); path.size() > m_places.home.size(); path = PathText::parent(path)) {
        if (!PathText::isAtOrBelow(path, m_places.home))
            return;
        mark(path, {}, Mark::itself, Protection::holdsProtected);
    }
}

SafetyTable::Verdict SafetyTable::judge(std::string_view path) const
{
    if (!m_places.isHomeUsable)
        return {true, true, Protection::outside};
    // The kernel would stop at a NUL, the rules would not.
    if (!path.starts_with('/') || path.find('\0') != std::string_view::npos)
        return {};
    const bool isResolvedForm =
        m_places.resolvedHome != m_places.home && PathText::isAtOrBelow(path, m_places.resolvedHome);
    bool isNormal = !isResolvedForm;
    for (std::size_t at = 1; isNormal && at <= path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        isNormal = isNormalComponent(path.substr(at, end - at));
        at = end + 1;
    }
    return isNormal ? judgeNormal(path) : judgeNormal(m_places.normalized(path));
}

SafetyTable::Verdict SafetyTable::judgeNormal(std::string_view path) const
{
    PathTrie::Cursor cursor(m_marks);
    std::string_view parent;
    std::string_view component;
    for (std::size_t at = 1; at < path.size();) {
        const std::size_t end = std::min(path.find('/', at), path.size());
        parent = component;
        component = path.substr(at, end - at);
        cursor.enter(component);
        if (cursor.isSealed())
            return {true, true, static_cast<Protection>(cursor.label())};
        if (const Protection sealed = SafetyRules::ofSealedName(parent, component);
            sealed != Protection::none)
            return {true, true, sealed};
        at = end + 1;
    }
    if (cursor.isMarked())
        return {true, cursor.areContentsMarked(), static_cast<Protection>(cursor.label())};
    const Protection named = SafetyRules::ofProtectedName(component);
    return {named != Protection::none, cursor.areContentsMarked(), named};
}

} // namespace orlen
